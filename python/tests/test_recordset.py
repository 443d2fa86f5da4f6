"""The open result: a sequence of records, and ADO's members."""
import datetime
import sqlite3
from decimal import Decimal

import pytest

from kovavsfdatagrid import ADODB, Error, KOVAVSFDataGrid


def test_there_is_none_before_the_load(grid):
    assert grid.RecordSet is None


def test_a_loop_gives_every_record_and_moves_nothing(loaded):
    assert [record['id'] for record in loaded.RecordSet] == [1, 2, 3]
    assert loaded.CurrPosition == 1


def test_values_are_pythons_own(loaded):
    record = loaded.RecordSet[0]
    assert tuple(record) == (1, '王伟', 10.5, datetime.date(2024, 1, 31), datetime.datetime(2024, 1, 31, 8, 30), b'a\0b')
    assert list(loaded.RecordSet[-1])[1:] == [None] * 5
    assert dict(loaded.RecordSet[1])['customer'] == 'Li'


def test_a_long_result_is_walked_whole(grid):
    grid.SQLShow = 'with recursive n(i) as (select 1 union all select i + 1 from n where i < 2500) select i from n'
    assert grid.IsLoadData()
    assert [record[0] for record in grid.RecordSet] == list(range(1, 2501))
    assert len(grid.RecordSet) == 2500


def test_sequences_rules_hold(loaded):
    records = loaded.RecordSet
    assert [record['id'] for record in records[1:]] == [2, 3]
    with pytest.raises(IndexError):
        records[3]
    with pytest.raises(KeyError):
        records[0]['Nowhere']
    assert records[0] == records[0] and records[0] != records[1]


def test_fields_describe_themselves(loaded):
    fields = loaded.RecordSet.Fields
    assert [field.Name for field in fields] == ['id', 'customer', 'amount', 'placed', 'changed', 'picture']
    assert fields('AMOUNT').Type is ADODB.DataTypeEnum.adDouble
    assert fields['id'].Attributes & ADODB.FieldAttributeEnum.adFldKeyColumn
    assert (fields[0].BaseTableName, fields[0].BaseColumnName) == ('Orders', 'id')
    with pytest.raises(KeyError):
        fields['Nowhere']


def test_moves_move_the_grid(loaded):
    records = loaded.RecordSet
    records.MoveLast()
    assert (loaded.CurrPosition, records.Fields('id').Value) == (3, 3)
    records.MoveNext()
    assert records.EOF
    with pytest.raises(Error) as error:
        records.MoveNext()
    assert error.value.Number & 0xffff == ADODB.ErrorValueEnum.adErrNoCurrentRecord
    records.AbsolutePosition = 1
    assert not records.BOF and records.AbsolutePosition == 1


@pytest.mark.parametrize('name, value', [
    ('customer', '张三'), ('customer', None), ('amount', 2.25), ('amount', 7), ('placed', datetime.date(1999, 12, 31)),
    ('changed', datetime.datetime(2001, 2, 3, 4, 5, 6)), ('picture', b'\0\xff')])
def test_an_update_saves_the_value(loaded, database, name, value):
    records = loaded.RecordSet
    records.Fields(name).Value = value
    assert records.EditMode is ADODB.EditModeEnum.adEditInProgress
    records.Update()
    assert records[0][name] == value
    with sqlite3.connect(database) as connection:
        stored = connection.execute(f'select {name} from Orders where id = 1').fetchone()[0]
    connection.close()
    assert stored == (str(value) if isinstance(value, datetime.date) else value)


def test_a_cancelled_edit_is_gone(loaded):
    records = loaded.RecordSet
    records.Fields('customer').Value = 'x'
    assert records.Fields('customer').OriginalValue == '王伟'
    records.CancelUpdate()
    assert records.Fields('customer').Value == '王伟'


def test_records_are_added_and_deleted(loaded):
    records = loaded.RecordSet
    records.AddNew()
    records.Fields('customer').Value = 'new'
    records.Update()
    assert len(records) == 4
    records.Delete()
    assert len(records) == 3


def test_values_of_other_types_are_refused(loaded):
    with pytest.raises(TypeError):
        loaded.RecordSet.Fields('customer').Value = object()
    with pytest.raises(Error):
        loaded.RecordSet.Fields('placed').Value = 'no date'
    assert loaded.RecordSet.EditMode is ADODB.EditModeEnum.adEditNone


def test_a_big_number_is_not_cut(loaded):
    with pytest.raises(Error):
        loaded.RecordSet.Fields('id').Value = 2**80


def test_a_replaced_result_raises_rather_than_crash(loaded):
    records, field = loaded.RecordSet, loaded.RecordSet.Fields('customer')
    assert loaded.IsLoadData()
    for use in (lambda: records.MoveNext(), lambda: len(records), lambda: field.Value, lambda: list(records)):
        with pytest.raises(Error) as error:
            use()
        assert error.value.Number & 0xffff == ADODB.ErrorValueEnum.adErrObjectClosed
    assert records.State == ADODB.ObjectStateEnum.adStateClosed


def test_a_deleted_grid_raises_rather_than_crash(database):
    from PyQt6 import sip
    grid = KOVAVSFDataGrid()
    grid.ConnectionString = f'Provider=SQLite;Data Source={database}'
    grid.SQLShow = 'select * from Orders'
    assert grid.IsLoadData()
    records = grid.RecordSet
    sip.delete(grid)
    with pytest.raises(Error):
        records[0]


def test_exact_numbers_are_decimals(grid):
    grid.SQLShow = 'select * from Prices'
    database = grid.ConnectionString.split('=')[-1]
    with sqlite3.connect(database) as connection:
        connection.execute('create table Prices(price decimal(30, 2))')
        connection.execute("insert into Prices values('n/a'), (1.5)")
    connection.close()
    assert grid.IsLoadData()
    assert [record[0] for record in grid.RecordSet] == ['n/a', 1.5]
    grid.RecordSet.Fields(0).Value = Decimal('2.50')
    grid.RecordSet.Update()
    assert float(grid.RecordSet[0][0]) == 2.5


def test_a_result_becomes_a_data_frame(loaded):
    pytest.importorskip('pandas')
    frame = loaded.to_dataframe()
    assert list(frame.columns) == ['id', 'customer', 'amount', 'placed', 'changed', 'picture']
    assert list(frame['id']) == [1, 2, 3]
    assert frame['amount'].sum() == 7.5
    assert frame['changed'].iloc[0] == datetime.datetime(2024, 1, 31, 8, 30)


def test_an_empty_result_becomes_an_empty_data_frame(grid):
    pytest.importorskip('pandas')
    assert grid.to_dataframe().empty
    grid.SQLShow = 'select * from Orders where id < 0'
    assert grid.IsLoadData()
    assert grid.to_dataframe().empty and len(grid.to_dataframe().columns) == 6
