// A form with the grid. On the developer's machine, once:
//   aximp "%LOCALAPPDATA%\Programs\KOVAVSFDataGrid x64\KOVAVSFDataGridLib.ocx"
//   csc /target:winexe /platform:x64 /r:AxKOVAVSFDataGridLib.dll /r:KOVAVSFDataGridLib.dll GridForm.cs
using System;
using System.Windows.Forms;
using AxKOVAVSFDataGridLib;
using KOVAVSFDataGridLib;

class GridForm : Form
{
    readonly AxKOVAVSFDataGrid grid = new AxKOVAVSFDataGrid();

    GridForm()
    {
        Text = "Orders";
        ((System.ComponentModel.ISupportInitialize)grid).BeginInit();
        grid.Dock = DockStyle.Fill;
        Controls.Add(grid);
        ((System.ComponentModel.ISupportInitialize)grid).EndInit();
    }

    protected override void OnLoad(EventArgs e)
    {
        base.OnLoad(e);
        grid.ConnectionString = @"Provider=SQLite;Data Source=C:\data\shop.db";
        grid.DBType = AllDBType.dbAccess;
        grid.SQLShow = "select * from orders";
        if (!grid.IsLoadData())
            return;
        dynamic records = grid.RecordSet; // known by names only
        Text = $"Orders: {records.RecordCount}";
    }

    protected override void OnFormClosing(FormClosingEventArgs e)
    {
        grid.ClearObject();
        base.OnFormClosing(e);
    }

    [STAThread] // the control needs a single-threaded apartment
    static void Main()
    {
        Application.Run(new GridForm());
    }
}
