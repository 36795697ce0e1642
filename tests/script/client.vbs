' Uses the registered component as a script does: every argument a plain variable, Let and Set, Nothing, the
' synchronization dialog closed by the user. Prints "ok" as its last line when all went well.
Option Explicit

Dim failures
failures = 0

Sub Expect(what, expected, actual)
    If expected <> actual Then
        WScript.Echo "FAILED: " & what & ": expected " & expected & ", got " & actual
        failures = failures + 1
    End If
End Sub

' The least of a host: the dialog asks it for nothing until a run starts.
Class HostAccess
    Public Function NewGuid()
        NewGuid = "key"
    End Function
End Class

Dim component, minutes, moment, name, refused, access, connection
Set component = CreateObject("TelvixOutlook.ClsSynOutlook")

minutes = 45
component.CalendarPreviewAlarmTime = minutes
Expect "CalendarPreviewAlarmTime", 45, component.CalendarPreviewAlarmTime
component.CalendarPreviewAlarmTime = "30"
Expect "CalendarPreviewAlarmTime from a text", 30, component.CalendarPreviewAlarmTime

moment = DateSerial(2024, 5, 1) + TimeSerial(17, 45, 59)
component.CalendarEndTime = moment
Expect "CalendarEndTime", "17:45", Right("0" & Hour(component.CalendarEndTime), 2) & ":" & Minute(component.CalendarEndTime)
component.CalendarEndTime = #17:30:00#
Expect "CalendarEndTime equals the script's own", True, component.CalendarEndTime = #17:30:00#
Expect "CalendarEndTime's day", 0, Fix(CDbl(component.CalendarEndTime))

name = "Tahoma"
component.FontName = name
Expect "FontName", "Tahoma", component.FontName
component.FontSize = 11
Expect "FontSize", 11, component.FontSize
Set component.Font = Nothing
Expect "FontSize after Set Font = Nothing", 11, component.FontSize
Expect "the font object's size", 11, CLng(component.Font.Size)

connection = ""
Set access = New HostAccess
refused = component.SynLoad(access, connection)
Expect "SynLoad without a connection string", True, refused
connection = "Driver=none"
refused = component.SynLoad(Nothing, connection)
Expect "SynLoad without an object", True, refused
refused = component.SynLoad(access, connection)
Expect "SynLoad by plain variables", False, refused
refused = component.SynLoad(access, "Driver=none")
Expect "SynLoad by a constant", False, refused

If failures = 0 Then
    WScript.Echo "ok"
End If
WScript.Quit failures
