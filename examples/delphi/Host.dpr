// A host in Delphi: dcc32 Host.dpr or dcc64 Host.dpr, as the component's architecture.
// This example has not been compiled or run.
program Host;

{$APPTYPE CONSOLE}

uses
  System.Win.ComObj, System.Variants, Winapi.ActiveX;

procedure Run;
var
  Access, Component: OleVariant;
begin
  Access := CreateOleObject('Scripting.Dictionary'); // your data-access object
  Component := CreateOleObject('TelvixOutlook.ClsSynOutlook');
  Component.CalendarStartTime := VarFromDateTime(8.5 / 24);
  Component.CalendarEndTime := VarFromDateTime(17.5 / 24);
  Component.CalendarPreviewAlarmTime := 15;
  Component.FontName := 'Tahoma';
  Component.FontSize := 9;
  if Component.SynLoad(Access, 'Provider=MSDASQL;DSN=Sales') then // returns when the user closes the dialog
    Writeln('Refused: an argument is missing.')
  else
    Writeln('Accepted.');
end;

begin
  CoInitialize(nil);
  Run; // releases its objects before COM goes
  CoUninitialize;
end.
