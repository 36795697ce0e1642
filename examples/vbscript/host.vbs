' A host in VBScript: cscript //nologo host.vbs
Option Explicit

Dim access, component, refused
Set access = CreateObject("Scripting.Dictionary") ' your data-access object
Set component = CreateObject("TelvixOutlook.ClsSynOutlook")

component.CalendarStartTime = TimeSerial(8, 30, 0)
component.CalendarEndTime = TimeSerial(17, 30, 0)
component.CalendarPreviewAlarmTime = 15
component.FontName = "Tahoma"
component.FontSize = 9

refused = component.SynLoad(access, "Provider=MSDASQL;DSN=Sales") ' returns when the user closes the dialog
If refused Then
    WScript.Echo "Refused: an argument is missing."
Else
    WScript.Echo "Accepted."
End If
