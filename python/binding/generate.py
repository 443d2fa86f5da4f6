#!/usr/bin/env python3
"""Writes the binding's .sip file, its properties and its type hints from the public headers.
usage: generate.py SOURCE_DIR SIP_DIR PACKAGE_DIR

So a new member of the control is in Python, with its documentation, as soon as it is in the headers.
"""
import sys
import textwrap
from pathlib import Path

from headers import Control, enumerations

# What a handler can change travels in an object, because Python has no arguments by reference.
CHANGEABLE = {
    'qint16 &Button, qint16 &Shift, float &x, float &y': 'MouseArguments',
    'qint16 &KeyCode, qint16 &Shift': 'KeyArguments',
    'qint16 DataError, qint16 &Response': 'ErrorArguments',
    'qint32 &Cancel, const QString &strLastFilter': 'FilterArguments',
}
HINTS = {'void': 'None', 'bool': 'bool', 'qint16': 'int', 'qint32': 'int', 'float': 'float', 'QString': 'str',
         'QColor': 'QColor', 'QFont': 'QFont', 'QObject *': 'QObject'}

ERRORS = ('Everything runs on the GUI thread. Errors are shown in message boxes. Only UseModel raises an exception, '
          'ControlError, and the members of RecordSet raise Error.')


def plain(cpp):
    """A type as it is passed by value: `const QString &` is QString."""
    return cpp.removeprefix('const ').removesuffix('&').strip()


def wrapped(text, indent=''):
    return '\n\n'.join(textwrap.fill(paragraph, 112, initial_indent=indent, subsequent_indent=indent)
                       for paragraph in text.split('\n\n'))


def docstring(text, indent):
    return f'{indent}%Docstring(format="deindented")\n{wrapped(text, indent)}\n{indent}%End\n' if text else ''


def hint_docstring(text, indent):
    return f'{indent}"""{wrapped(text, indent).strip()}"""\n'


def class_doc(control, indent):
    return wrapped(f'{control.doc}\n\n{ERRORS}', indent)


def event_arguments(event):
    """The C++ arguments of the signal that Python sees."""
    text = ', '.join(f'{cpp} {name}'.replace('& ', '&') for cpp, name in event.arguments)
    if text in CHANGEABLE:
        return f'const {CHANGEABLE[text]} &arguments'
    if any(cpp.endswith('&') and not cpp.startswith('const ') for cpp, _ in event.arguments):
        sys.exit(f'generate.py: add an entry to CHANGEABLE for the event {event.name}({text})')
    return text


def accepted_by(member, control):
    """The type hint of what a property can be set to."""
    is_enumeration = member.type in {enumeration.name for enumeration in control.enumerations}
    return f'{member.type} | int' if is_enumeration else HINTS[member.type]


def sip_enumeration(enumeration, indent):
    values = ',\n'.join(f'{indent}    {name}' for name, _, _ in enumeration.values)
    return f'{indent}enum {enumeration.name} /BaseType=IntEnum/ {{\n{values}\n{indent}}};\n'


def sip_property(member, enumerations_of_control):
    name = member.name
    if name == 'RecordSet':
        return ''  # recordset.py offers it
    if name == 'UseModel':  # throws at run time
        getter = (f'    SIP_PYOBJECT _{name}() const;\n%MethodCode\n'
                  f'        sipRes = guarded([sipCpp] {{ return enumerator(sipCpp->{name}(), '
                  f'sipType_PythonGrid_{member.type}); }});\n%End\n')
        setter = (f'    void _Put{name}(qint32 value);\n%MethodCode\n'
                  f'        if (!guarded([sipCpp, a0] {{ sipCpp->Put{name}(a0); return true; }}))\n'
                  f'            sipError = sipErrorFail;\n%End\n')
    elif member.type in enumerations_of_control:
        getter = (f'    SIP_PYOBJECT _{name}() const;\n%MethodCode\n'
                  f'        sipRes = enumerator(sipCpp->{name}(), sipType_PythonGrid_{member.type});\n%End\n')
        setter = f'    void Put{name}(qint32 value) /PyName=_Put{name}/;\n'
    else:
        getter = f'    {member.type} {name}() const /PyName=_{name}/;\n'
        setter = f'    void Put{name}({member.type} value) /PyName=_Put{name}/;\n'
    return getter + (setter if member.writable else '')


def properties_text(template, control, ado):
    # SIP's own %Property crashes when it calls a getter of a class of this kind.
    lines = []
    for member in control.properties:
        if member.name != 'RecordSet':
            accepted = accepted_by(member, control) if member.writable else ''
            lines.append(f'_add({member.name!r}, {accepted!r}, {wrapped(member.doc)!r})\n')
    # Nor does SIP give enumerations a docstring.
    lines += [f'PythonGrid.{enumeration.name}.__doc__ = {wrapped(enumeration.doc)!r}\n'
              for enumeration in control.enumerations]
    lines += [f'ADODB.{enumeration.name}.__doc__ = {wrapped(enumeration.doc)!r}\n' for enumeration in ado]
    return template.replace('@PROPERTIES@', ''.join(lines))


def sip_text(template, control, ado):
    names = {enumeration.name for enumeration in control.enumerations}
    lines = [sip_enumeration(enumeration, '    ') for enumeration in control.enumerations]
    lines += [sip_property(member, names) for member in control.properties]
    for method in control.methods:
        arguments = ', '.join(f'{plain(cpp)} {name}' for cpp, name in method.arguments)
        # A dialog may be open for long: other threads of the program go on meanwhile.
        lines.append(f'    {method.type} {method.name}({arguments}) /ReleaseGIL/;\n{docstring(method.doc, "    ")}')
    lines.append('\nsignals:\n')
    lines += [f'    void {event.name}({event_arguments(event)});\n{docstring(event.doc, "    ")}'
              for event in control.events]
    values = ''.join(sip_enumeration(enumeration, '') for enumeration in ado)
    scoped = 'namespace ADODB {\n%TypeHeaderCode\n#include <KOVAVSFDataGridLib/ado/Enums.h>\n%End\n' + values + '};\n'
    return (template.replace('@DOC@', class_doc(control, '')).replace('@MEMBERS@', '\n'.join(filter(None, lines)))
            .replace('@ADO@', scoped))


def hint_enumeration(enumeration, indent):
    values = ''.join(f'{indent}    {name} = {number}{f"  # {note}" if note else ""}\n'
                     for name, number, note in enumeration.values)
    return f'{indent}class {enumeration.name}(IntEnum):\n{hint_docstring(enumeration.doc, indent + "    ")}{values}\n'


def hint_text(template, control, ado):
    hints = HINTS | {enumeration.name: enumeration.name for enumeration in control.enumerations}
    lines = [hint_enumeration(enumeration, '    ') for enumeration in control.enumerations]
    for member in control.properties:
        if member.name == 'RecordSet':
            continue
        hint = hints[member.type]
        lines.append(f'    @property\n    def {member.name}(self) -> {hint}:\n'
                     + hint_docstring(member.doc, '        '))
        if member.writable:
            lines.append(f'    @{member.name}.setter\n'
                         f'    def {member.name}(self, value: {accepted_by(member, control)}) -> None: ...\n')
    for method in control.methods:
        arguments = ''.join(f', {name}: {hints[plain(cpp)]}' for cpp, name in method.arguments)
        lines.append(f'    def {method.name}(self{arguments}) -> {hints[method.type]}:\n'
                     + hint_docstring(method.doc, '        '))
    for event in control.events:
        lines.append(f'    {event.name}: ClassVar[pyqtSignal]  # ({event_arguments(event)})\n')
        lines.append(hint_docstring(event.doc, '    '))
    values = ''.join(hint_enumeration(enumeration, '    ') for enumeration in ado)
    return (template.replace('@DOC@', class_doc(control, '    ').strip()).replace('@MEMBERS@', '\n'.join(lines))
            .replace('@ADO@', 'class ADODB:\n' + values))


def main(source, sip_folder, package_folder):
    control = Control(Path(source, 'src/control/face'))
    ado = enumerations(Path(source, 'src/ado/Enums.h').read_text('utf-8'))
    binding = Path(source, 'python/binding')
    for folder, name, text_of in ((sip_folder, '_kovavsfdatagrid.sip', sip_text),
                                  (package_folder, '_properties.py', properties_text),
                                  (package_folder, '_kovavsfdatagrid.pyi', hint_text)):
        text = text_of(Path(binding, name + '.in').read_text('utf-8'), control, ado)
        target = Path(folder, name)
        if not target.exists() or target.read_text('utf-8') != text:
            target.write_text(text, 'utf-8')


if __name__ == '__main__':
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
