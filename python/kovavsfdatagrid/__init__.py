"""The SQL result grid for PyQt6.

    from kovavsfdatagrid import KOVAVSFDataGrid

    grid = KOVAVSFDataGrid()
    grid.ConnectionString = 'Provider=SQLite;Data Source=shop.db'
    grid.SQLShow = 'select * from Orders'
    grid.show()
    grid.IsLoadData()

Properties, methods and events have the names of the reference. Events with arguments that a handler may change carry an
object with these arguments.
"""
# mypy: disable-error-code="import"
# That is for pandas, which is optional.
from __future__ import annotations

from typing import TYPE_CHECKING

from ._kovavsfdatagrid import (ADODB, ErrorArguments, FilterArguments, KeyArguments, MouseArguments, PythonGrid)
from . import _properties  # noqa: F401 (gives PythonGrid its properties)
from .errors import ControlError, Error
from .recordset import Field, Fields, Record, Recordset

if TYPE_CHECKING:
    import pandas

__all__ = ['ADODB', 'ControlError', 'Error', 'ErrorArguments', 'Field', 'Fields', 'FilterArguments', 'KOVAVSFDataGrid',
           'KeyArguments', 'MouseArguments', 'Record', 'Recordset']


class KOVAVSFDataGrid(PythonGrid):
    __doc__ = PythonGrid.__doc__

    @property
    def RecordSet(self) -> Recordset | None:
        """The open result; None when nothing is open. Valid until the next load or ClearObject."""
        result = self._result()
        return Recordset(result) if result.isOpen() else None

    def to_dataframe(self) -> pandas.DataFrame:
        """All records of the open result, one column for each field. Empty when nothing is open. Needs pandas."""
        import pandas

        result = self._result()
        if not result.isOpen():
            return pandas.DataFrame()
        values = [result.column(index) for index in range(result.fieldCount())]
        frame = pandas.concat([pandas.Series(column, dtype=None if column else object) for column in values], axis=1)
        frame.columns = [result.fieldName(index) for index in range(result.fieldCount())]
        return frame
