"""The open result of a grid by ADO's member names, and as a sequence of records."""
from __future__ import annotations

from collections.abc import Iterator, Sequence
from typing import Any, overload

from ._kovavsfdatagrid import ADODB, Result

_RECORDS_AT_ONCE = 1000


class Record(Sequence[Any]):
    """The values of one record, by field name or by position: record['price'], record[0], dict(record)."""

    __slots__ = ('_values', '_indexes')

    def __init__(self, values: tuple[Any, ...], indexes: dict[str, int]):
        self._values = values
        self._indexes = indexes

    def keys(self) -> list[str]:
        """The field names."""
        return list(self._indexes)

    def __getitem__(self, key: str | int | slice) -> Any:
        return self._values[self._indexes[key] if isinstance(key, str) else key]

    def __len__(self) -> int:
        return len(self._values)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, (Record, tuple)):
            return NotImplemented
        return tuple(self) == tuple(other)

    def __hash__(self) -> int:
        return hash(self._values)

    def __repr__(self) -> str:
        return f'Record({", ".join(f"{name}={self[name]!r}" for name in self._indexes)})'


class Field:
    """One column, and in Value its cell in the current record."""

    def __init__(self, result: Result, index: int):
        self._result = result
        self._index = index

    @property
    def Name(self) -> str:
        """The column's heading."""
        return self._result.fieldName(self._index)

    @property
    def Type(self) -> ADODB.DataTypeEnum:
        """The type of its values, as the database declares it."""
        return self._result.fieldType(self._index)

    @property
    def DefinedSize(self) -> int:
        """The maximum number of characters or bytes; 0 when unlimited or unknown."""
        return self._result.fieldDefinedSize(self._index)

    @property
    def Precision(self) -> int:
        """Decimal digits of a number, else 0."""
        return self._result.fieldPrecision(self._index)

    @property
    def NumericScale(self) -> int:
        """Digits after the decimal point, else 0."""
        return self._result.fieldNumericScale(self._index)

    @property
    def Attributes(self) -> int:
        """Bits of ADODB.FieldAttributeEnum."""
        return self._result.fieldAttributes(self._index)

    @property
    def BaseTableName(self) -> str:
        """The table that the values come from; empty for an expression."""
        return self._result.fieldBaseTableName(self._index)

    @property
    def BaseColumnName(self) -> str:
        """The column of that table; empty for an expression."""
        return self._result.fieldBaseColumnName(self._index)

    @property
    def Value(self) -> Any:
        """None for Null. Setting it starts an edit of the current record, which Recordset.Update saves."""
        return self._result.fieldValue(self._index)

    @Value.setter
    def Value(self, value: Any) -> None:
        self._result.putFieldValue(self._index, value)

    @property
    def OriginalValue(self) -> Any:
        """The value without an unsaved edit."""
        return self._result.fieldOriginalValue(self._index)

    @property
    def UnderlyingValue(self) -> Any:
        """The value that the database had at the latest Recordset.Resync."""
        return self._result.fieldUnderlyingValue(self._index)


class Fields(Sequence[Field]):
    """The columns: by position, by name in any letter case, or in a loop."""

    def __init__(self, result: Result):
        self._result = result

    def __len__(self) -> int:
        return self._result.fieldCount()

    @property
    def Count(self) -> int:
        """How many there are."""
        return len(self)

    @overload
    def __getitem__(self, key: str | int) -> Field: ...

    @overload
    def __getitem__(self, key: slice) -> list[Field]: ...

    def __getitem__(self, key: str | int | slice) -> Field | list[Field]:
        if isinstance(key, slice):
            return [self[index] for index in range(*key.indices(len(self)))]
        if isinstance(key, str):
            index = self._result.indexOf(key)
            if index < 0:
                raise KeyError(key)
            return Field(self._result, index)
        index = key + len(self) if key < 0 else key
        if not 0 <= index < len(self):
            raise IndexError(key)
        return Field(self._result, index)

    __call__ = __getitem__
    Item = __getitem__


class Recordset(Sequence[Record]):
    """The open result. It is valid until the next load; after that its members raise Error 3704.

    A loop over it gives every record and moves nothing. The members with ADO's names work on the current record, which
    is also the grid's: MoveNext moves the grid.
    """

    def __init__(self, result: Result):
        self._result = result

    def __len__(self) -> int:
        return self._result.RecordCount()

    @overload
    def __getitem__(self, key: int) -> Record: ...

    @overload
    def __getitem__(self, key: slice) -> list[Record]: ...

    def __getitem__(self, key: int | slice) -> Record | list[Record]:
        if isinstance(key, slice):
            return [self[index] for index in range(*key.indices(len(self)))]
        index = key + len(self) if key < 0 else key
        if not 0 <= index < len(self):
            raise IndexError(key)
        return Record(self._result.records(index + 1, 1)[0], self._indexes())

    def __iter__(self) -> Iterator[Record]:
        indexes = self._indexes()
        first = 1
        while records := self._result.records(first, _RECORDS_AT_ONCE):
            for values in records:
                yield Record(values, indexes)
            first += len(records)

    def __bool__(self) -> bool:
        return True  # an open result without records is still one

    def _indexes(self) -> dict[str, int]:
        names: dict[str, int] = {}
        for index in range(self._result.fieldCount()):
            names.setdefault(self._result.fieldName(index), index)
        return names

    @property
    def Fields(self) -> Fields:
        """The columns."""
        return Fields(self._result)

    @property
    def State(self) -> ADODB.ObjectStateEnum:
        """Whether the result is open."""
        return ADODB.ObjectStateEnum.adStateOpen if self._result.isOpen() else ADODB.ObjectStateEnum.adStateClosed

    @property
    def Source(self) -> str:
        """The statement."""
        return self._result.Source()

    @property
    def BOF(self) -> bool:
        """Before the first record."""
        return self._result.isBOF()

    @property
    def EOF(self) -> bool:
        """After the last record."""
        return self._result.isEOF()

    @property
    def RecordCount(self) -> int:
        """The number of records, without an unsaved new one."""
        return self._result.RecordCount()

    @property
    def AbsolutePosition(self) -> int:
        """The current record, from 1, or a number of ADODB.PositionEnum. Setting it moves."""
        return self._result.AbsolutePosition()

    @AbsolutePosition.setter
    def AbsolutePosition(self, position: int) -> None:
        self._result.PutAbsolutePosition(position)

    @property
    def AbsolutePage(self) -> int:
        """The current page, from 1, or a number of ADODB.PositionEnum. Setting it moves to its first record."""
        return self._result.AbsolutePage()

    @AbsolutePage.setter
    def AbsolutePage(self, page: int) -> None:
        self._result.PutAbsolutePage(page)

    @property
    def PageSize(self) -> int:
        """Records per page."""
        return self._result.PageSize()

    @PageSize.setter
    def PageSize(self, records: int) -> None:
        self._result.PutPageSize(records)

    @property
    def PageCount(self) -> int:
        """The number of pages."""
        return self._result.PageCount()

    @property
    def EditMode(self) -> ADODB.EditModeEnum:
        """Whether the current record has unsaved changes, is new, or was deleted."""
        return self._result.EditMode()

    @property
    def CursorLocation(self) -> ADODB.CursorLocationEnum:
        """Where the result is kept."""
        return self._result.CursorLocation()

    @property
    def CursorType(self) -> ADODB.CursorTypeEnum:
        """How the result follows changes."""
        return self._result.CursorType()

    @property
    def LockType(self) -> ADODB.LockTypeEnum:
        """Whether records can be changed."""
        return self._result.LockType()

    def Move(self, records: int, start: int = ADODB.BookmarkEnum.adBookmarkCurrent) -> None:
        """Moves by a number of records, after saving an edit."""
        self._result.Move(records, start)

    def MoveFirst(self) -> None:
        """Moves to the first record, after saving an edit."""
        self._result.MoveFirst()

    def MoveNext(self) -> None:
        """Moves to the next record, after saving an edit."""
        self._result.MoveNext()

    def MovePrevious(self) -> None:
        """Moves to the previous record, after saving an edit."""
        self._result.MovePrevious()

    def MoveLast(self) -> None:
        """Moves to the last record, after saving an edit."""
        self._result.MoveLast()

    def AddNew(self) -> None:
        """Begins a new record, which Update saves."""
        self._result.AddNew()

    def Update(self) -> None:
        """Saves the edit. When it fails, nothing is saved and the edit stays."""
        self._result.Update()

    def CancelUpdate(self) -> None:
        """Discards the edit."""
        self._result.CancelUpdate()

    def Delete(self) -> None:
        """Deletes the current record."""
        self._result.Delete()

    def Resync(self, what: int = ADODB.ResyncEnum.adResyncAllValues) -> None:
        """Reads the current record from the database again."""
        self._result.Resync(what)
