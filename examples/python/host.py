"""A host in Python: python host.py (needs pywin32, and Python of the component's architecture).

This example has not been run: Wine has no Python for Windows.
"""
import win32com.client

access = win32com.client.Dispatch("Scripting.Dictionary")  # your data-access object
component = win32com.client.Dispatch("TelvixOutlook.ClsSynOutlook")

component.CalendarStartTime = 8.5 / 24  # an automation date: the part of a day
component.CalendarEndTime = 17.5 / 24
component.CalendarPreviewAlarmTime = 15
component.FontName = "Tahoma"
component.FontSize = 9

# SynLoad returns when the user closes the dialog. The object goes by reference, so pywin32 may return it too.
result = component.SynLoad(access, "Provider=MSDASQL;DSN=Sales")
refused = result[0] if isinstance(result, tuple) else result
print("Refused: an argument is missing." if refused else "Accepted.")
