"""Forms, type hints, docstrings and examples."""
import ast
import os
import re
import subprocess
import sys
from pathlib import Path

import kovavsfdatagrid
import pytest
from kovavsfdatagrid import ADODB, KOVAVSFDataGrid
from kovavsfdatagrid._kovavsfdatagrid import Result
from PyQt6 import uic
from PyQt6.QtCore import pyqtSignal
from PyQt6.QtWidgets import QWidget

TOP = Path(__file__).parents[2]
HINTS = ast.parse(Path(kovavsfdatagrid.__file__).with_name('_kovavsfdatagrid.pyi').read_text('utf-8'))


def hinted_members():
    grid = next(node for node in HINTS.body if isinstance(node, ast.ClassDef) and node.name == 'PythonGrid')
    names = set()
    for node in grid.body:
        if isinstance(node, (ast.FunctionDef, ast.ClassDef)):
            names.add(node.name)
        elif isinstance(node, ast.AnnAssign):
            names.add(node.target.id)
    return {name for name in names if not name.startswith('_')}


def real_members():
    return {name for name in vars(KOVAVSFDataGrid.__base__) if not name.startswith('_')}


def test_the_type_hints_name_what_there_is():
    assert hinted_members() == real_members()
    assert len(real_members()) > 70


def test_every_member_of_the_interface_is_there():
    header = (TOP / 'src/control/face/IKOVAVSFDataGrid.h').read_text('utf-8')
    names = set(re.findall(r'virtual [^~;]*?(\w+)\([^;]*= 0;', header))
    names -= {name for name in names if name.startswith('Put')}
    assert len(names) > 50
    assert names - {'RecordSet'} <= real_members()


def test_no_override_is_missing():
    face = TOP / 'src/control/face'
    control = (face / 'KOVAVSFDataGrid.h').read_text('utf-8')
    overrides = set(re.findall(r'(\w+)\([^()]*\)(?: const)? override;', control))
    interface = set(re.findall(r'(\w+)\([^()]*\)(?: const)? = 0;', (face / 'IKOVAVSFDataGrid.h').read_text('utf-8')))
    own = overrides - interface - {'KOVAVSFDataGrid'}
    assert {'sizeHint', 'resizeEvent'} <= own <= real_members()


@pytest.mark.parametrize('name', sorted(real_members()))
def test_every_member_is_documented(name):
    assert getattr(KOVAVSFDataGrid, name).__doc__


def test_docstrings_are_in_words_of_python_and_wrapped():
    members = {name: getattr(KOVAVSFDataGrid, name) for name in real_members()}
    # PyQt gives all events one docstring, about signals.
    texts = {name: member.__doc__ for name, member in members.items() if not isinstance(member, pyqtSignal)}
    texts['KOVAVSFDataGrid'] = KOVAVSFDataGrid.__doc__
    texts |= {name: value.__doc__ for name, value in vars(ADODB).items() if name.endswith('Enum')}
    foreign = re.compile(r'::|C\+\+|\b(true|false|null|throws?)\b')
    assert {name: text for name, text in texts.items() if foreign.search(text)} == {}
    assert {name for name, text in texts.items() if max(map(len, text.splitlines())) > 120} == set()
    assert len(KOVAVSFDataGrid.__doc__.split('\n\n')) == 2


@pytest.mark.parametrize('name, value, accepted', [('SQLShow', 1, 'str, not int'), ('ReadOnly', 'x', 'bool, not str'),
                                                   ('DBType', 'x', 'AllDBType | int, not str')])
def test_a_value_of_the_wrong_type_is_reported_with_the_property(name, value, accepted):
    with pytest.raises(TypeError, match=f'^{re.escape(f"{name} must be {accepted}")}$'):
        setattr(KOVAVSFDataGrid(), name, value)


def test_a_form_is_loaded():
    form = uic.loadUi(str(TOP / 'tests/designer/form.ui'), QWidget())
    assert type(form.grid) is KOVAVSFDataGrid
    assert form.grid.BackColor.name() == '#c8dcf0'


def test_a_form_is_compiled(tmp_path):
    module = tmp_path / 'shop_form.py'
    with module.open('w') as out:
        uic.compileUi(str(TOP / 'tests/designer/form.ui'), out)
    names = {}
    exec(module.read_text(), names)
    window = QWidget()
    form = names['Ui_ShopForm']()
    form.setupUi(window)
    assert type(form.grid) is KOVAVSFDataGrid


def test_a_host_passes_a_type_checker(tmp_path):
    pytest.importorskip('mypy')
    host = tmp_path / 'host.py'
    host.write_text("""
from kovavsfdatagrid import FilterArguments, KOVAVSFDataGrid

def choose(arguments: FilterArguments) -> None:
    arguments.Cancel = 0

def names(grid: KOVAVSFDataGrid) -> list[str]:
    grid.DBType = KOVAVSFDataGrid.AllDBType.dbOracle
    grid.QurryFilter.connect(choose)
    if not grid.IsLoadData() or grid.RecordSet is None:
        return []
    first = grid.RecordSet[0]
    width: int = grid.RecordSet.Fields('name').DefinedSize
    return [str(first['name'])[:width]] + [str(record['name']) for record in grid.RecordSet]
""")
    package = Path(kovavsfdatagrid.__file__).parents[1]
    command = [sys.executable, '-m', 'mypy', '--strict', '--follow-imports=silent', '--cache-dir', tmp_path / 'cache']
    outcome = subprocess.run(command + [host], capture_output=True, text=True,
                             env=os.environ | {'MYPYPATH': str(package)})
    assert outcome.stdout.startswith('Success'), outcome.stdout


def test_the_package_itself_passes_a_type_checker(tmp_path):
    pytest.importorskip('mypy')
    package = Path(kovavsfdatagrid.__file__).parent
    outcome = subprocess.run([sys.executable, '-m', 'mypy', '--strict', '--follow-imports=silent',
                              '--cache-dir', tmp_path / 'cache', '-p', package.name],
                             capture_output=True, text=True, env=os.environ | {'MYPYPATH': str(package.parent)})
    assert outcome.stdout.startswith('Success'), outcome.stdout


def test_the_type_hints_of_the_result_name_what_there_is():
    hinted = next(node for node in HINTS.body if isinstance(node, ast.ClassDef) and node.name == 'Result')
    names = {node.name for node in hinted.body if isinstance(node, ast.FunctionDef)}
    assert names == {name for name in vars(Result) if not name.startswith('_')}


@pytest.mark.parametrize('example', sorted((TOP / 'python/examples').glob('*.py')), ids=lambda path: path.name)
def test_an_example_says_how_it_is_used(example):
    outcome = subprocess.run([sys.executable, example], capture_output=True, text=True)
    assert outcome.returncode == 2
    assert outcome.stderr.startswith('usage: ')
