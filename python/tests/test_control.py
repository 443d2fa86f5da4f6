"""Properties, methods, enumerations and exceptions of the control."""
import enum

import pytest
from PyQt6.QtGui import QColor, QFont
from PyQt6.QtWidgets import QTableView, QWidget

from kovavsfdatagrid import ADODB, ControlError, KOVAVSFDataGrid


def test_is_a_widget_with_the_controls_name():
    grid = KOVAVSFDataGrid()
    assert isinstance(grid, QWidget)
    assert grid.metaObject().className() == 'KOVAVSFDataGrid'
    assert grid.findChild(QTableView, 'vsfgDataGrid')


def test_what_the_control_overrides_runs_from_python_too():
    class Grid(KOVAVSFDataGrid):
        resized = 0

        def resizeEvent(self, event):
            super().resizeEvent(event)
            self.resized += 1

    grid = Grid()
    assert grid.sizeHint().width() == 3 * grid.minimumWidth()
    grid.resize(900, 500)
    grid.show()
    assert grid.resized > 0
    assert grid.findChild(QTableView, 'vsfgDataGrid').width() > 850


@pytest.mark.parametrize('name, value', [
    ('STR_SQLTEMP', '文字'), ('BackColor', QColor(1, 2, 3)), ('DataBackColor', QColor(4, 5, 6)), ('ErrorHint', True),
    ('ConnectionString', 'Provider=SQLite;Data Source=a.db'), ('SQLShow', 'select * from T'), ('SQLSort', 'a DESC'),
    ('TableType', KOVAVSFDataGrid.TBLType.DefSQL), ('ReadOnly', True), ('UserMode', False), ('PicField', 'picture'),
    ('ShowModel', KOVAVSFDataGrid.ShowModelChoose.ModelPart), ('SysDBCnn', 'x'), ('PassQurryFilter', '[a] > 1')])
def test_a_property_reads_back_as_it_was_written(name, value):
    grid = KOVAVSFDataGrid()
    setattr(grid, name, value)
    assert getattr(grid, name) == value
    assert type(getattr(grid, name)) is type(value)


def test_a_font_is_taken():
    grid = KOVAVSFDataGrid()
    grid.DataFont = QFont('monospace', 17)
    assert grid.DataFont.pointSize() == 17


def test_enumerations_are_numbers_too():
    grid = KOVAVSFDataGrid()
    before = grid.DBType
    grid.DBType = 3
    assert grid.DBType is KOVAVSFDataGrid.AllDBType.dbSQLServer
    grid.DBType = before
    assert issubclass(ADODB.DataTypeEnum, enum.IntEnum)
    assert ADODB.DataTypeEnum.adVarWChar == 202


def test_what_has_no_setter_cannot_be_written():
    with pytest.raises(AttributeError):
        KOVAVSFDataGrid().RecordSource = 'select 1'


def test_a_wrong_type_is_refused():
    with pytest.raises(TypeError):
        KOVAVSFDataGrid().SQLShow = 1


def test_the_form_editors_property_raises_at_run_time():
    grid = KOVAVSFDataGrid()
    with pytest.raises(ControlError) as read:
        grid.UseModel
    assert read.value.Number == 393
    with pytest.raises(ControlError) as written:
        grid.UseModel = KOVAVSFDataGrid.UseModelChoose.ModelDefine
    assert written.value.Number == 382
    assert written.value.Description == str(written.value) == "Property can't be set at run time"
    assert (written.value.number, written.value.description) == (written.value.Number, written.value.Description)


def test_the_form_editors_property_works_at_design_time():
    grid = KOVAVSFDataGrid()
    grid.UserMode = False
    grid.UseModel = 1
    assert grid.UseModel is KOVAVSFDataGrid.UseModelChoose.ModelDefine


def test_a_load_shows_the_result(loaded):
    assert loaded.RecordSource == 'select * from Orders'
    assert loaded.CurrPosition == 1
    assert loaded.CellText(0, 2) == 'customer'
    assert loaded.CellTextL(1, 2) == '王伟'
    assert loaded.GetBindFieldIndex('amount') == 3
    assert loaded.LocateSelRecord(2)
    assert loaded.CurrPosition == 2


def test_a_failed_load_returns_false_and_says_why(grid, message_boxes):
    grid.SQLShow = 'select * from Nowhere'
    assert not grid.IsLoadData()
    assert message_boxes.pop(0).startswith('错误描述为：')
    assert message_boxes.pop(0) == '数据库打开失败。'
    assert grid.RecordSet is None


def test_export_writes_a_file(loaded, tmp_path):
    assert loaded.ExportData(str(tmp_path / 'orders.csv'), 'Encoding=UTF-8')
    assert '王伟' in (tmp_path / 'orders.csv').read_text('utf-8-sig')
