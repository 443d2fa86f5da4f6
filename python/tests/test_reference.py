"""The documents list the names by which hosts find the control's parts and commands."""
import re
from pathlib import Path

import pytest
from PyQt6.QtCore import QObject
from PyQt6.QtGui import QAction
from PyQt6.QtWidgets import QToolBar

from kovavsfdatagrid import KOVAVSFDataGrid


DOCUMENTS = Path(__file__).resolve().parents[2] / 'docs'


@pytest.fixture
def names():
    """The text of that section of the reference."""
    return (DOCUMENTS / 'reference.md').read_text('utf-8').partition('## Names of parts and commands')[2]


@pytest.fixture
def commands(names):
    """The keys of the buttons and the numbers of the popup menu's entries in the table of commands."""
    rows = re.findall(r'^\|([^|]*)\|([^|]*)\| [^|]+ \|$', names, re.M)
    keys = re.findall(r'`(\w+)`', ' '.join(key for key, number in rows))
    return set(keys), {int(number) for key, number in rows if number.strip().isdigit()}


@pytest.fixture
def grid():
    return KOVAVSFDataGrid()


def test_every_part_is_there(grid, names):
    parts = re.findall(r'`(\w+)`', ''.join(re.findall(r'^\| (`[^|]*) \|[^|]*\|$', names, re.M)))
    assert len(parts) > 8
    assert [name for name in parts if grid.findChild(QObject, name) is None] == []


def test_every_button_is_listed(grid, commands):
    buttons = grid.findChild(QToolBar, 'Toolbar1').actions()
    assert commands[0] == {action.objectName() for action in buttons if action.objectName()}


def test_every_entry_of_the_popup_menu_is_listed(grid, commands):
    actions = {int(action.objectName().removeprefix('PopMnuDataAction')): action for action in grid.findChildren(QAction)
               if action.objectName().startswith('PopMnuDataAction')}
    assert commands[1] == {number for number, action in actions.items() if action.text()}
