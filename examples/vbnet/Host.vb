' A host in VB.NET: vbc Host.vb
' Add /platform:x86 or /platform:x64 for the architecture of the installed component.
' This example has not been compiled or run.
Option Strict Off
Imports System

Module Host
    <STAThread()>
    Sub Main()
        Dim access As Object = CreateObject("Scripting.Dictionary") ' your data-access object
        Dim component As Object = CreateObject("TelvixOutlook.ClsSynOutlook")

        component.CalendarStartTime = DateTime.FromOADate(8.5 / 24)
        component.CalendarEndTime = DateTime.FromOADate(17.5 / 24)
        component.CalendarPreviewAlarmTime = 15
        component.FontName = "Tahoma"
        component.FontSize = 9

        Dim refused As Boolean = component.SynLoad(access, "Provider=MSDASQL;DSN=Sales") ' returns when the user closes the dialog
        Console.WriteLine(If(refused, "Refused: an argument is missing.", "Accepted."))
    End Sub
End Module
