// Lists a result. Start it with: cscript //nologo list.js C:\data\shop.db
var grid = new ActiveXObject("KOVAVSFDataGridLib.KOVAVSFDataGrid");
grid.ConnectionString = "Provider=SQLite;Data Source=" + WScript.Arguments(0);
grid.DBType = 1; // dbAccess, also right for SQLite
grid.SQLShow = "select * from orders";
if (!grid.IsLoadData()) { // a message box has shown the reason
    WScript.Echo("The orders cannot be read.");
    WScript.Quit(1);
}
for (var records = grid.RecordSet; !records.EOF; records.MoveNext())
    WScript.Echo(records.Fields("id").Value + "\t" + records.Fields("total").Value);
grid.ClearObject();
