// The numbers of the component's resources, kept by hand. Strings keep the numbers of the host contract (0 to
// 1095; a number that is not here is absent from the table), those of our own follow from 4000 on. Dialogs
// and their controls have a block of one hundred per dialog, from 2000 on: the dialog's own number ends in
// 00.
#pragma once

// The component's icon, which its dialogs show.
#define IDI_TELVIX 1

// The manifest that selects the common controls' visual styles; 2 is the number that a DLL's manifest has.
#define IDR_MANIFEST 2

// Strings: general.
#define IDS_LANGUAGE 0
#define IDS_ERROR_LABEL 1
#define IDS_MESSAGE 2
#define IDS_ERROR 100

// Strings: folder picker.
#define IDS_PICKER_CONTACTS 101
#define IDS_PICKER_CHOSEN 102
#define IDS_PICKER_CALENDAR 103
#define IDS_PICKER_TASKS 104

// Strings: buttons and options that several dialogs share.
#define IDS_CONFLICT_EXPLANATION 1000
#define IDS_OK 1001
#define IDS_CANCEL 1002
#define IDS_OPTIONS 1004
#define IDS_CONFLICT_ADD_ALL 1005
#define IDS_CONFLICT_IGNORE_ALL 1006
#define IDS_CONFLICT_NOTIFY 1007
#define IDS_CONFLICT_HOST_WINS 1008
#define IDS_CONFLICT_OUTLOOK_WINS 1009

// Strings: categories of the main dialog.
#define IDS_CATEGORY 1011
#define IDS_CATEGORY_TASK 1012
#define IDS_CATEGORY_CALENDAR 1013
#define IDS_CATEGORY_CONTACT 1014

// Strings: choice of translator, direction and folder.
#define IDS_CHOOSE_PROMPT 1021
#define IDS_CHOOSE_TRANSLATORS 1022
#define IDS_CHOOSE_OPERATION 1023
#define IDS_DIRECTION_IMPORT 1024
#define IDS_DIRECTION_EXPORT 1025
#define IDS_DIRECTION_BOTH 1026
#define IDS_CHOOSE_BROWSE 1027
#define IDS_CHOOSE_FOLDER 1028
#define IDS_CHOOSE_OPTION 1029

// Strings: Outlook profile.
#define IDS_PROFILE_EXPLANATION 1030
#define IDS_PROFILE_CAPTION 1031
#define IDS_PROFILE_LABEL 1032

// Strings: advanced options.
#define IDS_CONFLICT_TAB 1034
#define IDS_TASKS_ALL 1035
#define IDS_TASKS_PENDING 1036
#define IDS_CALENDAR_ALL 1038
#define IDS_CALENDAR_FUTURE 1039
#define IDS_CALENDAR_RANGE 1040
#define IDS_CALENDAR_PRIOR 1041
#define IDS_CALENDAR_AFTER 1042
#define IDS_RANGE_EXPLANATION 1043

// Strings: course of a run.
#define IDS_RUN_APPLYING 1044
#define IDS_RUN_SUCCEEDED 1045
#define IDS_RUN_NO_PROFILE 1046
#define IDS_RUN_COLLECTING 1047
#define IDS_CONFIRM_INSTRUCTION 1049
#define IDS_CONFIRM_ADDITIONS 1090
#define IDS_CONFIRM_MODIFICATIONS 1091

// Strings of the component's own, beside those of the contract.
#define IDS_NOT_LOADED 4000
#define IDS_PICKER_CAPTION_CONTACTS 4001
#define IDS_PICKER_CAPTION_TASKS 4002
#define IDS_PICKER_CAPTION_CALENDAR 4003
#define IDS_OUTLOOK_BUSY 4004

// Strings of the report of a run. {0} and so on are replaced by numbers and names.
#define IDS_REPORT_CAPTION 4200
#define IDS_REPORT_OPEN 4201
#define IDS_REPORT_COPY 4202
#define IDS_REPORT_SAVE 4203
#define IDS_REPORT_CLOSE 4204
#define IDS_REPORT_LIST 4205
#define IDS_REPORT_DETAILS 4206
#define IDS_REPORT_SUMMARY 4207
#define IDS_REPORT_TO_OUTLOOK_NEW 4208
#define IDS_REPORT_TO_OUTLOOK_CHANGED 4209
#define IDS_REPORT_TO_HOST_NEW 4210
#define IDS_REPORT_TO_HOST_CHANGED 4211
#define IDS_REPORT_COUNTS 4212
#define IDS_REPORT_NOT_REACHED 4213
#define IDS_REPORT_VANISHED 4214
#define IDS_REPORT_OTHER_ITEMS 4215
#define IDS_REPORT_WHOLE_RUN 4216
#define IDS_REPORT_COLUMN_CHANGE 4217
#define IDS_REPORT_COLUMN_RECORD 4218
#define IDS_REPORT_COLUMN_REASON 4219
#define IDS_REPORT_COLUMN_FIELD 4220
#define IDS_REPORT_COLUMN_LENGTH 4221
#define IDS_REPORT_COLUMN_WORDS 4222
#define IDS_REPORT_COLUMN_CODE 4223
#define IDS_REPORT_FAILED 4224
#define IDS_REPORT_GONE 4225
#define IDS_REPORT_EMPTY_FIELD 4226
#define IDS_REPORT_NO_DATE 4227
#define IDS_REPORT_ENDS_TOO_EARLY 4228
#define IDS_REPORT_LINK_REFUSED 4229
#define IDS_REPORT_READ_REFUSED 4230
#define IDS_REPORT_UNKNOWN_VALUE 4231
#define IDS_REPORT_TEXT_CUT 4232
#define IDS_REPORT_RIGHT_MISSING 4233
#define IDS_REPORT_NO_HOST_ROWS 4234
#define IDS_REPORT_NO_FOLDER 4235
#define IDS_REPORT_RUN_FAILED 4236
#define IDS_REPORT_FILES 4237
#define IDS_REPORT_NOT_SAVED 4238
#define IDS_REPORT_NOT_COPIED 4239
#define IDS_REPORT_RIGHT_MISSING_TIMES 4240

// Dialogs. The OK and Cancel roles are IDOK and IDCANCEL, so that Enter and Escape reach them.
#define IDD_SYNCHRONIZEITEM 2000 // FrmSynchronizeItem
#define IDC_SYNC_OPTION 2001     // SstbOption
#define IDC_SYNC_CATEGORY 2002   // lvCategory
#define IDC_SYNC_FRAME 2003      // Frame1
#define IDC_SYNC_STATE 2004      // lblState
#define IDC_SYNC_PROGRESS 2005   // prgbarSyn
#define IDC_SYNC_START 2006      // CmdSynchronize
#define IDC_SYNC_CONFIGURE 2007  // CmdConfigure
#define IDC_SYNC_REPORT 2008     // cmdReport

#define IDD_MESSAGE 2100               // FrmMessage
#define IDC_MESSAGE_TITLE 2101         // LblTitle
#define IDC_MESSAGE_PICTURE 2102       // Picture1
#define IDC_MESSAGE_TO_OL_TITLE 2103   // LblSynToOlTitle
#define IDC_MESSAGE_TO_OL_NEW 2104     // LblSynToOlNew
#define IDC_MESSAGE_TO_OL_MODIFY 2105  // LblSynToOlModify
#define IDC_MESSAGE_TO_SYN_TITLE 2106  // LblOlToSynTitle
#define IDC_MESSAGE_TO_SYN_NEW 2107    // LblOlToSynNew
#define IDC_MESSAGE_TO_SYN_MODIFY 2108 // LblOlToSynModify
#define IDC_MESSAGE_DETAILS 2109       // cmdDetails

#define IDD_SHOWERR 2200             // FrmShowErr
#define IDC_SHOWERR_PICTURE 2201     // the error icon
#define IDC_SHOWERR_TITLE 2202       // Txt_Title
#define IDC_SHOWERR_DESCRIPTION 2203 // Txt_ErrDescription

#define IDD_SHOWINFOR 2300             // FrmShowInfor
#define IDC_SHOWINFOR_PICTURE 2301     // the information icon
#define IDC_SHOWINFOR_DESCRIPTION 2302 // Txt_ErrDescription

#define IDD_CONFIGURE 2400         // FrmConfigure
#define IDC_CONFIGURE_LABEL 2401   // over the list
#define IDC_CONFIGURE_LIST 2402    // lvTran
#define IDC_CONFIGURE_CHOOSE 2403  // cmdChoose
#define IDC_CONFIGURE_ADVANCE 2404 // cmdAdvance

#define IDD_SYNCHOOSE 2500 // FrmSynChoose
#define IDC_CHOOSE_PROMPT 2501
#define IDC_CHOOSE_TRANSLATORS_LABEL 2502
#define IDC_CHOOSE_TRANSLATORS 2503 // lstTran
#define IDC_CHOOSE_OPERATION 2504   // the frame around the options
#define IDC_CHOOSE_DIRECTION 2505   // OptSynType(1), and the two numbers that follow
#define IDC_CHOOSE_FOLDER_LABEL 2508
#define IDC_CHOOSE_FOLDER 2509 // txtFolder
#define IDC_CHOOSE_BROWSE 2510 // cmdBrowse
#define IDC_CHOOSE_OPTION 2511 // cmdOption
#define IDC_CHOOSE_APPLY 2512  // chkApply

#define IDD_SYNCONTENT 2600 // FrmSynContent
#define IDC_CONTENT_PROMPT 2601
#define IDC_CONTENT_TREE_LABEL 2602
#define IDC_CONTENT_TREE 2603    // tvOlFolder
#define IDC_CONTENT_ADD 2604     // cmdAdd
#define IDC_CONTENT_REMOVE 2605  // cmdRemove
#define IDC_CONTENT_DEFAULT 2606 // cmdDefault
#define IDC_CONTENT_LIST_LABEL 2607
#define IDC_CONTENT_LIST 2608 // lvSelItems

// The three advanced option dialogs number what they share alike.
#define IDD_ADVCONTACTS 2700 // FrmAdvContacts
#define IDC_ADV_TABS 2701
#define IDC_ADV_CONFLICT_EXPLANATION 2702
#define IDC_ADV_CONFLICT_FRAME 2703
#define IDC_ADV_CONFLICT 2704 // option 1, and the four numbers that follow
#define IDC_ADV_RANGE_EXPLANATION 2711
#define IDC_ADV_RANGE_FRAME 2712
#define IDC_ADV_RANGE 2713   // option 0, and the two numbers that follow (tasks: one)
#define IDD_ADVCALENDAR 2800 // FrmAdvCalendar
#define IDC_ADVCALENDAR_PRIOR_LABEL 2801
#define IDC_ADVCALENDAR_PRIOR 2802 // txtPrior
#define IDC_ADVCALENDAR_AFTER_LABEL 2803
#define IDC_ADVCALENDAR_AFTER 2804 // txtAfter
#define IDD_ADVACTIVITES 2900      // FrmAdvActivites

#define IDD_OUTLOOKOPTION 3000 // FrmOutLookOption
#define IDC_OUTLOOKOPTION_EXPLANATION 3001
#define IDC_OUTLOOKOPTION_LABEL 3002
#define IDC_OUTLOOKOPTION_PROFILE 3003 // CmbProfile

#define IDD_REPORT 3200         // FrmReport
#define IDC_REPORT_SUMMARY 3201 // txtSummary
#define IDC_REPORT_LIST_LABEL 3202
#define IDC_REPORT_SUMMARY_LABEL 3208
#define IDC_REPORT_LIST 3203 // lvRows
#define IDC_REPORT_DETAILS_LABEL 3204
#define IDC_REPORT_DETAILS 3205 // txtDetails
#define IDC_REPORT_COPY 3206    // cmdCopy
#define IDC_REPORT_SAVE 3207    // cmdSave

#define IDD_CHANGES 3300 // FrmChanges
#define IDC_CHANGES_SEARCH_LABEL 3301
#define IDC_CHANGES_SEARCH 3302 // txtSearch
#define IDC_CHANGES_COLUMN_LABEL 3303
#define IDC_CHANGES_COLUMN 3304 // cmbColumn
#define IDC_CHANGES_ORDER_LABEL 3305
#define IDC_CHANGES_ORDER 3306 // cmbOrder
#define IDC_CHANGES_LIST_LABEL 3307
#define IDC_CHANGES_LIST 3308     // lvChanges
#define IDC_CHANGES_COUNT 3309    // lblCount
#define IDC_CHANGES_PROGRESS 3310 // prgbarReading
#define IDC_CHANGES_STOP 3311     // cmdStop
#define IDC_CHANGES_FIELDS_LABEL 3312
#define IDC_CHANGES_FIELDS 3313  // lvFields
#define IDC_CHANGES_NOTES 3314   // txtNotes
#define IDC_CHANGES_CHECK 3315   // cmdCheckAll
#define IDC_CHANGES_UNCHECK 3316 // cmdUncheckAll
#define IDC_CHANGES_SAVE 3317    // cmdSave
