"""Loads a CSV file into the grid, and reads it back into pandas after the user has filtered or edited it."""
import sqlite3
import sys
import tempfile

if len(sys.argv) != 2:
    print('usage: dataframe.py CSV_FILE', file=sys.stderr)
    sys.exit(2)
import pandas
from kovavsfdatagrid import KOVAVSFDataGrid
from PyQt6.QtWidgets import QApplication

app = QApplication(sys.argv)
with tempfile.NamedTemporaryFile(suffix='.db') as file:
    with sqlite3.connect(file.name) as connection:
        pandas.read_csv(sys.argv[1]).to_sql('data', connection, index_label='row')
    connection.close()
    grid = KOVAVSFDataGrid()
    grid.ConnectionString = f'Provider=SQLite;Data Source={file.name}'
    grid.SQLShow = 'select * from data'
    grid.resize(960, 600)
    grid.show()
    if not grid.IsLoadData():
        sys.exit(1)  # the grid has shown the user the reason
    app.exec()
    print(grid.to_dataframe().describe())  # as the user has filtered or edited it
    grid.ClearObject()
