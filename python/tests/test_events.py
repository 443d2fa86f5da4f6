"""Every event arrives, and what a handler changes arrives at the control."""
from PyQt6.QtCore import QPoint, Qt
from PyQt6.QtTest import QTest
from PyQt6.QtWidgets import QCheckBox, QTableView, QToolBar, QWidget

from kovavsfdatagrid import ADODB, KeyArguments


def table_of(grid):
    return grid.findChild(QTableView, 'vsfgDataGrid')


def cell(grid, row, column):
    table = table_of(grid)
    return table.visualRect(table.model().index(row, column)).center()


def press(grid, key):
    toolbar = grid.findChild(QToolBar, 'Toolbar1')
    next(action for action in toolbar.actions() if action.objectName() == key).trigger()


def heard(signal):
    calls = []
    signal.connect(lambda *arguments: calls.append(arguments))
    return calls


def test_a_click_raises_mouse_events_and_moves_the_record(loaded):
    down, up, clicks = heard(loaded.DataMouseDown), heard(loaded.DataMouseUp), heard(loaded.DataClick)
    changed = heard(loaded.RecordChanged)
    QTest.mouseClick(table_of(loaded).viewport(), Qt.MouseButton.LeftButton, Qt.KeyboardModifier.ShiftModifier,
                     cell(loaded, 1, 1))
    QTest.mouseClick(table_of(loaded).viewport(), Qt.MouseButton.LeftButton, pos=cell(loaded, 2, 1))
    assert [(a.Button, a.Shift) for (a,) in down] == [(1, 1), (1, 0)]
    assert len(up) == 2 and up[0][0].x > 0 and up[0][0].y > 0
    assert clicks == [(), ()]
    assert changed[-1][1] == 3


def test_the_pointer_is_followed(loaded):
    moves = heard(loaded.DataMouseMove)
    QTest.mouseMove(table_of(loaded).viewport(), cell(loaded, 1, 1))
    QTest.mouseMove(table_of(loaded).viewport(), cell(loaded, 2, 1))
    assert moves and moves[-1][0].Button == 0


def test_the_panel_has_an_event_of_its_own(loaded):
    ups = heard(loaded.MouseUp)
    panel = loaded.findChild(QWidget, 'picMainBack')
    QTest.mouseClick(panel, Qt.MouseButton.LeftButton, pos=QPoint(1, panel.height() - 1))
    assert [a.Button for (a,) in ups] == [1]


def test_a_double_click_names_its_cell(loaded):
    loaded.findChild(QCheckBox, 'CheckSelAllRow').setChecked(False)
    plain, cells = heard(loaded.DataDblClick), heard(loaded.DataDBLClickOneCell)
    QTest.mouseDClick(table_of(loaded).viewport(), Qt.MouseButton.LeftButton, pos=cell(loaded, 1, 2))
    assert plain == [()]
    assert cells == [(3, 2)]


def test_a_double_click_on_the_number_names_its_row(loaded):
    rows = heard(loaded.DataDBLClickOneRow)
    header = table_of(loaded).verticalHeader()
    QTest.mouseDClick(header.viewport(), Qt.MouseButton.LeftButton,
                      pos=QPoint(header.width() // 2, header.sectionViewportPosition(1) + 3))
    assert rows == [(2,)]


def test_a_click_on_a_heading_names_its_column(loaded):
    headings = heard(loaded.HeadClick)
    header = table_of(loaded).horizontalHeader()
    QTest.mouseClick(header.viewport(), Qt.MouseButton.LeftButton,
                     pos=QPoint(header.sectionViewportPosition(1) + header.sectionSize(1) // 2, header.height() // 2))
    assert headings == [(2,)]


def test_a_handler_that_clears_the_key_keeps_it_from_the_grid(loaded):
    keys = []

    def swallow(arguments):
        keys.append(arguments)
        arguments.KeyCode = 0

    loaded.DataKeyDown.connect(swallow)
    table_of(loaded).setFocus()
    QTest.keyClick(table_of(loaded), Qt.Key.Key_Down)
    assert loaded.CurrPosition == 1
    loaded.DataKeyDown.disconnect(swallow)
    QTest.keyClick(table_of(loaded), Qt.Key.Key_Down)
    assert loaded.CurrPosition == 2
    # A handler may keep the arguments.
    assert isinstance(keys[0], KeyArguments) and keys[0].KeyCode == 0


def test_a_handler_filters_in_place_of_the_dialog(loaded):
    statements = heard(loaded.RecordsetChanged)
    seen = []

    def answer(arguments):
        seen.append(arguments.strLastFilter)
        loaded.PassQurryFilter = '[amount] > 0'
        arguments.Cancel = 0

    loaded.QurryFilter.connect(answer)
    press(loaded, 'Filter')
    assert seen == ['select * from Orders']
    assert [record['id'] for record in loaded.RecordSet] == [1]
    assert statements


def test_a_load_says_what_happened(grid):
    reasons, names = heard(grid.RecordsetChanged), heard(grid.PropertyChanged)
    grid.SQLShow = 'select id from Orders'
    assert grid.IsLoadData()
    assert ('SQLShow',) in names
    assert reasons[-1] == (ADODB.EventReasonEnum.adRsnRequery,)


def test_a_late_bound_host_is_notified_of_errors(grid):
    errors = heard(grid.HostError)
    grid.setProperty('UseModel', 1)
    assert errors == [(382, "Property can't be set at run time")]


def test_arguments_of_a_wrong_type_are_refused(loaded):
    results = []

    def wrong(arguments):
        try:
            arguments.KeyCode = 'x'
        except TypeError as error:
            results.append(error)

    loaded.DataKeyDown.connect(wrong)
    QTest.keyClick(table_of(loaded), Qt.Key.Key_F12)
    assert len(results) == 1


def test_a_handler_may_delete_the_grid(loaded):
    loaded.DataKeyDown.connect(lambda arguments: loaded.deleteLater())
    QTest.keyClick(table_of(loaded), Qt.Key.Key_Down)


def test_the_events_that_only_users_cause_can_be_connected(grid):
    for signal in (grid.Error, grid.ShowFieldsChange):
        assert heard(signal) == []
