' A form with the grid. On the developer's machine, once:
'   aximp "%LOCALAPPDATA%\Programs\KOVAVSFDataGrid x64\KOVAVSFDataGridLib.ocx"
'   vbc /target:winexe /platform:x64 /r:AxKOVAVSFDataGridLib.dll,KOVAVSFDataGridLib.dll GridForm.vb
Option Strict Off ' the recordset is known by names only
Imports System
Imports System.Windows.Forms
Imports AxKOVAVSFDataGridLib
Imports KOVAVSFDataGridLib

Public Class GridForm
    Inherits Form

    Private ReadOnly grid As New AxKOVAVSFDataGrid()

    Public Sub New()
        Text = "Orders"
        CType(grid, ComponentModel.ISupportInitialize).BeginInit()
        grid.Dock = DockStyle.Fill
        Controls.Add(grid)
        CType(grid, ComponentModel.ISupportInitialize).EndInit()
    End Sub

    Protected Overrides Sub OnLoad(e As EventArgs)
        MyBase.OnLoad(e)
        grid.ConnectionString = "Provider=SQLite;Data Source=C:\data\shop.db"
        grid.DBType = AllDBType.dbAccess
        grid.SQLShow = "select * from orders"
        If Not grid.IsLoadData() Then Return
        Dim records As Object = grid.RecordSet
        Text = "Orders: " & records.RecordCount
    End Sub

    Protected Overrides Sub OnFormClosing(e As FormClosingEventArgs)
        grid.ClearObject()
        MyBase.OnFormClosing(e)
    End Sub

    <STAThread>
    Public Shared Sub Main()
        Application.Run(New GridForm())
    End Sub
End Class
