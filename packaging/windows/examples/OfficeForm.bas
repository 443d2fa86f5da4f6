' A form in an Office program with the grid. In the Visual Basic editor (Alt+F11): Insert, UserForm; in the toolbox's
' menu, Additional Controls, tick KOVAVSFDataGrid; draw it on the form and name it grid. Then paste this as the form's
' code. Office and the control must have the same number of bits.

Private Sub UserForm_Initialize()
    grid.DBType = 1 ' dbAccess, also right for SQLite
    grid.ConnectionString = "Provider=SQLite;Data Source=" & Environ("USERPROFILE") & "\shop.db"
    grid.SQLShow = "select * from orders order by total desc"
    If Not grid.IsLoadData Then Caption = "The orders could not be loaded"
End Sub

Private Sub UserForm_Terminate()
    grid.ClearObject
End Sub
