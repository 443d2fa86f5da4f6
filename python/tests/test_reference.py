"""The reference lists the names by which hosts find the control's parts and commands."""
import re
from pathlib import Path

import pytest
from PyQt6.QtCore import QObject
from PyQt6.QtGui import QAction
from PyQt6.QtWidgets import QToolBar

from kovavsfdatagrid import KOVAVSFDataGrid


@pytest.fixture
def names():
    """The text of that section."""
    file = Path(__file__).resolve().parents[2] / 'docs' / 'reference.md'
    return file.read_text('utf-8').partition('## Names of parts and commands')[2]


@pytest.fixture
def grid():
    return KOVAVSFDataGrid()


def commands(names):
    """Of each row: the keys and the numbers."""
    rows = re.findall(r'^\| [^|]+ \|([^|]*)\|([^|]*)\|$', names, re.M)
    return ([key for keys, _ in rows for key in re.findall(r'`(\w+)`', keys)],
            [int(number) for _, numbers in rows for number in re.findall(r'\d+', numbers)])


def test_every_part_is_there(grid, names):
    parts = re.findall(r'`(\w+)`', ''.join(re.findall(r'^\| (`[^|]*) \|[^|]*\|$', names, re.M)))
    assert len(parts) > 8
    assert [name for name in parts if grid.findChild(QObject, name) is None] == []


def test_every_button_is_listed(grid, names):
    buttons = grid.findChild(QToolBar, 'Toolbar1').actions()
    assert sorted(commands(names)[0]) == sorted(action.objectName() for action in buttons if action.objectName())


def test_every_entry_of_the_popup_menu_is_listed(grid, names):
    actions = {int(action.objectName().removeprefix('PopMnuDataAction')): action for action in grid.findChildren(QAction)
               if action.objectName().startswith('PopMnuDataAction')}
    assert sorted(commands(names)[1]) == sorted(number for number, action in actions.items() if action.text())
