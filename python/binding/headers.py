"""Reads the public headers: what the binding offers, and the comments that become docstrings."""
import re
from dataclasses import dataclass
from pathlib import Path


@dataclass
class Member:
    name: str
    type: str  # what a function returns or a property holds, as C++ writes it
    arguments: list  # of (type, name)
    doc: str
    writable: bool = False


@dataclass
class Enumeration:
    name: str
    values: list  # of (name, number, doc)
    doc: str


def _in_python(text):
    """A text of the headers in Python's words."""
    for cpp, python in (('; see Error.h', ''), ('an ADODB::Adodc', 'a QObject'), ('KOVAVSFDataGridLib::', ''),
                        ('throws', 'raises')):
        text = text.replace(cpp, python)
    text = re.sub(r'::(\w+)(?:\(\))?', r'.\1', text)
    return re.sub(r'\b(true|false|null)\b', lambda word: 'None' if word[0] == 'null' else word[0].capitalize(), text)


def _doc(lines):
    """The text of a comment's lines; an empty one ends a paragraph."""
    words = (line.strip().removeprefix('//').strip() for line in lines)
    return _in_python(re.sub(r'\s*\n\s*', '\n\n', ' '.join(line or '\n' for line in words)).strip())


def _blocks(text):
    """Yields each declaration with the comment that applies to it. A comment applies up to the next blank line."""
    comment, declaration, fresh = [], '', True
    for line in text.splitlines():
        line = line.strip()
        if line.startswith('//') and not declaration:
            if not fresh:
                comment, fresh = [], True
            comment.append(line)
        elif not line:
            comment, fresh = [], True
        elif not declaration and re.fullmatch(r'\w+:?', line):
            pass  # Q_OBJECT, public:
        else:
            declaration += ' ' + re.sub(r'\s*//.*', '', line)
            if declaration.endswith((';', '{', '}', ')')) and declaration.count('(') == declaration.count(')'):
                yield declaration.strip(), _doc(comment)
                declaration, fresh = '', False


def _arguments(text):
    return [(cpp.strip(), name) for cpp, name in re.findall(r'([^,]*?)(\w+) *(?:,|$)', text)]


def enumerations(text):
    found = []
    for match in re.finditer(r'((?:^ *//.*\n)*)^ *enum (\w+) : qint32 \{\n([^}]*)\};', text, re.M):
        values = re.findall(r'(\w+) = (-?\w+),?(?: *// *(.*))?', match[3])
        values = [(name, int(number, 0), _in_python(note)) for name, number, note in values]
        found.append(Enumeration(match[2], values, _doc(match[1].splitlines())))
    return found


class Control:
    """The control: properties, methods, events and enumerations, in the order of the headers."""

    def __init__(self, folder):
        interface = Path(folder, 'IKOVAVSFDataGrid.h').read_text('utf-8')
        control = Path(folder, 'KOVAVSFDataGrid.h').read_text('utf-8')
        docs = {}
        functions = {}
        for declaration, doc in _blocks(interface):
            match = re.match(r'virtual (.+?)(\w+)\((.*)\)(?: const)? = 0;', declaration)
            if match:
                docs[match[2]] = doc
                functions[match[2]] = Member(match[2], match[1].strip(), _arguments(match[3]), doc)
        comment = re.search(r'((?:^//.*\n)+)class KOVA_EXPORT KOVAVSFDataGrid', control, re.M)[1]
        # What follows the first paragraph is about C++.
        self.doc = _doc(comment.splitlines()).partition('\n\n')[0]
        self.properties = []
        for declaration, doc in _blocks(control):
            match = re.match(r'Q_PROPERTY\((.+?)(\w+) READ \w+( WRITE \w+)?', declaration)
            if match:
                self.properties.append(Member(match[2], match[1].strip(), [], docs.get(match[2]) or doc, bool(match[3])))
        names = {member.name for member in self.properties}
        self.methods = [function for name, function in functions.items()
                        if name not in names and name.removeprefix('Put') not in names]
        self.enumerations = enumerations(control)
        events = control[control.index('Q_SIGNALS:') + len('Q_SIGNALS:'):control.index('protected:')]
        self.events = []
        for declaration, doc in _blocks(events):
            match = re.match(r'void (\w+)\((.*)\);', declaration)
            if match:
                self.events.append(Member(match[1], 'void', _arguments(match[2]), doc))
