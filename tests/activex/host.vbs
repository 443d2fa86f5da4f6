' A script host: knows names only. Prints what it sees; arguments: the database file.
Option Explicit
Dim grid, records, text
Set grid = CreateObject("KOVAVSFDataGridLib.KOVAVSFDataGrid")
grid.connectionstring = "Provider=SQLite;Data Source=" & WScript.Arguments(0)
grid.DBType = 3
grid.SQLShow = "select id, name from people order by id"
WScript.Echo "Loaded: " & grid.IsLoadData
WScript.Echo "RecordSource: " & grid.RecordSource
WScript.Echo "Cell: " & grid.CellText(2, 2)
WScript.Echo "Index: " & grid.GetBindFieldIndex("name")
Set records = grid.RecordSet
records.MoveFirst
' The length of the names, because a console need not be able to show them.
text = ""
Do Until records.EOF
    text = text & "[" & records.Fields("id").Value & ":" & Len(records.Fields("name").Value) & "]"
    records.MoveNext
Loop
WScript.Echo "Records: " & text
text = ""
Dim field
For Each field In records.Fields
    text = text & "[" & field.Name & "]"
Next
WScript.Echo "Fields: " & text
records.MoveFirst
records("name") = "Wang"
WScript.Echo "Written: " & records("name")
grid.RecordSet("name") = "Zhao"
WScript.Echo "In one go: " & grid.RecordSet("id") & ", " & grid.RecordSet.Fields("name")
records.CancelUpdate
On Error Resume Next
text = grid.UseModel
WScript.Echo "UseModel read: " & (Err.Number And 65535)
Err.Clear
grid.UseModel = 1
WScript.Echo "UseModel write: " & (Err.Number And 65535)
Err.Clear
text = records.Fields("nothing").Value
WScript.Echo "No field: " & (Err.Number And 65535)
On Error GoTo 0
grid.ClearObject
