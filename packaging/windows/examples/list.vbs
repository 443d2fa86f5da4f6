' Lists a result. Start it with: cscript //nologo list.vbs C:\data\shop.db
Option Explicit
Dim grid, records
Set grid = CreateObject("KOVAVSFDataGridLib.KOVAVSFDataGrid")
grid.ConnectionString = "Provider=SQLite;Data Source=" & WScript.Arguments(0)
grid.DBType = 1 ' dbAccess, also right for SQLite
grid.SQLShow = "select * from orders"
If Not grid.IsLoadData Then ' a message box has shown the reason
    WScript.Echo "The orders cannot be read."
    WScript.Quit 1
End If

Set records = grid.RecordSet
records.Filter = "total >= 100"
records.Sort = "total DESC"
Do Until records.EOF
    WScript.Echo records("id") & vbTab & records("total")
    records.MoveNext
Loop
grid.ClearObject
