// The numbers of the component's resources, kept by hand. Strings keep the numbers of the host contract (0 to
// 1095; a number that is not here is absent from the table). Dialogs and their controls have a block of one
// hundred per dialog, from 2000 on: the dialog's own number ends in 00.
#pragma once

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

// Dialogs. The OK and Cancel roles are IDOK and IDCANCEL, so that Enter and Escape reach them.
#define IDD_SYNCHRONIZEITEM 2000 // FrmSynchronizeItem
#define IDC_SYNC_OPTION 2001     // SstbOption
#define IDC_SYNC_CATEGORY 2002   // lvCategory
#define IDC_SYNC_FRAME 2003      // Frame1
#define IDC_SYNC_STATE 2004      // lblState
#define IDC_SYNC_PROGRESS 2005   // prgbarSyn
#define IDC_SYNC_START 2006      // CmdSynchronize
#define IDC_SYNC_CONFIGURE 2007  // CmdConfigure

#define IDD_MESSAGE 2100               // FrmMessage
#define IDC_MESSAGE_TITLE 2101         // LblTitle
#define IDC_MESSAGE_PICTURE 2102       // Picture1
#define IDC_MESSAGE_TO_OL_TITLE 2103   // LblSynToOlTitle
#define IDC_MESSAGE_TO_OL_NEW 2104     // LblSynToOlNew
#define IDC_MESSAGE_TO_OL_MODIFY 2105  // LblSynToOlModify
#define IDC_MESSAGE_TO_SYN_TITLE 2106  // LblOlToSynTitle
#define IDC_MESSAGE_TO_SYN_NEW 2107    // LblOlToSynNew
#define IDC_MESSAGE_TO_SYN_MODIFY 2108 // LblOlToSynModify

#define IDD_SHOWERR 2200             // FrmShowErr
#define IDC_SHOWERR_PICTURE 2201     // the error icon
#define IDC_SHOWERR_TITLE 2202       // Txt_Title
#define IDC_SHOWERR_DESCRIPTION 2203 // Txt_ErrDescription

#define IDD_SHOWINFOR 2300             // FrmShowInfor
#define IDC_SHOWINFOR_PICTURE 2301     // the information icon
#define IDC_SHOWINFOR_DESCRIPTION 2302 // Txt_ErrDescription
