"""A grid in a window, and the record that the user is at."""
import sys

from kovavsfdatagrid import KOVAVSFDataGrid
from PyQt6.QtWidgets import QApplication, QMainWindow

if len(sys.argv) != 3:
    print('usage: orders.py DATABASE STATEMENT', file=sys.stderr)
    sys.exit(2)
app = QApplication(sys.argv)
window = QMainWindow()
grid = KOVAVSFDataGrid(window)
window.setCentralWidget(grid)
window.resize(960, 600)
grid.RecordChanged.connect(lambda reason, record: window.statusBar().showMessage(f'Record {record}'))
grid.ConnectionString = f'Provider=SQLite;Data Source={sys.argv[1]}'
grid.SQLShow = sys.argv[2]
window.show()
if not grid.IsLoadData():
    sys.exit(1)  # the grid has shown the user the reason
result = app.exec()
grid.ClearObject()
sys.exit(result)
