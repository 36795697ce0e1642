// A host in JScript: cscript //nologo host.js
var access = new ActiveXObject("Scripting.Dictionary"); // your data-access object
var component = new ActiveXObject("TelvixOutlook.ClsSynOutlook");

component.CalendarStartTime = 8.5 / 24; // an automation date: the part of a day
component.CalendarEndTime = 17.5 / 24;
component.CalendarPreviewAlarmTime = 15;
component.FontName = "Tahoma";
component.FontSize = 9;

var refused = component.SynLoad(access, "Provider=MSDASQL;DSN=Sales"); // returns when the user closes the dialog
WScript.Echo(refused ? "Refused: an argument is missing." : "Accepted.");
