"""Forms, type hints, docstrings and examples."""
import ast
import os
import re
import subprocess
import sys
from pathlib import Path

import kovavsfdatagrid
import pytest
from kovavsfdatagrid import KOVAVSFDataGrid
from PyQt6 import uic
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


@pytest.mark.parametrize('example', sorted((TOP / 'python/examples').glob('*.py')), ids=lambda path: path.name)
def test_an_example_says_how_it_is_used(example):
    outcome = subprocess.run([sys.executable, example], capture_output=True, text=True)
    assert outcome.returncode == 2
    assert outcome.stderr.startswith('usage: ')
