"""Prints what a workbook holds, one cell a line: sheet, place, kind, value, number format."""
import sys

import openpyxl

book = openpyxl.load_workbook(sys.argv[1])
for sheet in book.worksheets:
    widths = [round(d.width) for _, d in sorted(sheet.column_dimensions.items())]
    print(f"{sheet.title}|rows {sheet.max_row}|frozen {sheet.freeze_panes}|widths {widths}")
    if len(sys.argv) > 2:
        continue
    for row in sheet.iter_rows():
        for cell in row:
            if cell.value is not None:
                print(f"{cell.coordinate}|{cell.data_type}|{cell.value!r}|{cell.number_format}")
