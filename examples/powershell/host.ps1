# A host in PowerShell: powershell -File host.ps1
# This example has not been run: Wine has no PowerShell.
$access = New-Object -ComObject Scripting.Dictionary # your data-access object
$component = New-Object -ComObject TelvixOutlook.ClsSynOutlook

$component.CalendarStartTime = [DateTime]::FromOADate(8.5 / 24)
$component.CalendarEndTime = [DateTime]::FromOADate(17.5 / 24)
$component.CalendarPreviewAlarmTime = 15
$component.FontName = 'Tahoma'
$component.FontSize = 9

# SynLoad takes the object by reference, and returns when the user closes the dialog.
$refused = $component.SynLoad([ref]$access, 'Provider=MSDASQL;DSN=Sales')
if ($refused) { 'Refused: an argument is missing.' } else { 'Accepted.' }
