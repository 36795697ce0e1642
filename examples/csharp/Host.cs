// A host in C#: csc /r:Microsoft.CSharp.dll Host.cs
// Add /platform:x86 or /platform:x64 for the architecture of the installed component.
// This example is compiled with Mono's mcs; it has not been run.
using System;

static class Host
{
    static object Create(string progId)
    {
        return Activator.CreateInstance(Type.GetTypeFromProgID(progId, true));
    }

    [STAThread]
    static void Main()
    {
        object access = Create("Scripting.Dictionary"); // your data-access object
        dynamic component = Create("TelvixOutlook.ClsSynOutlook");

        component.CalendarStartTime = DateTime.FromOADate(8.5 / 24);
        component.CalendarEndTime = DateTime.FromOADate(17.5 / 24);
        component.CalendarPreviewAlarmTime = 15;
        component.FontName = "Tahoma";
        component.FontSize = 9;

        bool refused = component.SynLoad(ref access, "Provider=MSDASQL;DSN=Sales"); // returns when the user closes the dialog
        Console.WriteLine(refused ? "Refused: an argument is missing." : "Accepted.");
    }
}
