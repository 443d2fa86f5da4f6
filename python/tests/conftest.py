import sqlite3

import pytest
from PyQt6.QtCore import QTimer, QtMsgType, qInstallMessageHandler
from PyQt6.QtTest import QTest
from PyQt6.QtWidgets import QApplication, QMessageBox

from kovavsfdatagrid import KOVAVSFDataGrid


@pytest.fixture(scope='session', autouse=True)
def application():
    return QApplication.instance() or QApplication(['tests'])


@pytest.fixture(autouse=True)
def warnings_fail():
    """A Qt warning fails the test, as in the tests in C++."""
    seen = []

    def keep(kind, _, text):
        if kind in (QtMsgType.QtWarningMsg, QtMsgType.QtCriticalMsg) and 'propagateSizeHints' not in text:
            seen.append(text)

    before = qInstallMessageHandler(keep)
    yield
    qInstallMessageHandler(before)
    assert seen == []


@pytest.fixture
def database(tmp_path):
    path = tmp_path / 'shop.db'
    with sqlite3.connect(path) as connection:
        connection.execute('create table Orders(id integer primary key, customer text, amount real, placed date,'
                           ' changed timestamp, picture blob)')
        connection.executemany(
            'insert into Orders values(?, ?, ?, ?, ?, ?)',
            [(1, '王伟', 10.5, '2024-01-31', '2024-01-31 08:30:00', b'a\0b'), (2, 'Li', -3, '2024-02-01', None, None),
             (3, None, None, None, None, None)])
    connection.close()
    return path


@pytest.fixture
def grid(database):
    grid = KOVAVSFDataGrid()
    grid.resize(600, 400)
    grid.ConnectionString = f'Provider=SQLite;Data Source={database}'
    grid.SQLShow = 'select * from Orders'
    yield grid
    grid.ClearObject()
    grid.deleteLater()


@pytest.fixture
def loaded(grid):
    grid.show()
    assert QTest.qWaitForWindowExposed(grid)
    assert grid.IsLoadData()
    return grid


@pytest.fixture(autouse=True)
def message_boxes():
    """Answers message boxes, and lists their texts. A test takes out those that it expects; others fail it."""
    texts = []

    def answer():
        window = QApplication.activeModalWidget()
        if isinstance(window, QMessageBox):
            texts.append(window.text())
            window.accept()
        elif window:
            texts.append(window.objectName())
            window.close()

    timer = QTimer()
    timer.timeout.connect(answer)
    timer.start(10)
    yield texts
    timer.stop()
    assert texts == []
