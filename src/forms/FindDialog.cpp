#include "forms/FindDialog.h"

#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/widgets/FieldCombo.h"
#include "query/QueryTexts.h"
#include "query/conditions/FindText.h"
#include "query/fields/colDataFields.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void setTextColour(QLineEdit &edit, QPalette::ColorRole role)
{
    QPalette palette = edit.palette();
    palette.setColor(QPalette::Text, edit.window()->palette().color(role));
    edit.setPalette(palette);
}

// Whether the key is more than a modifier or a key that moves the focus.
bool isTyped(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return false;
    default:
        return true;
    }
}

bool carriesText(const QInputMethodEvent &event)
{
    return !event.preeditString().isEmpty() || !event.commitString().isEmpty();
}

} // namespace

FindDialog::FindDialog(QWidget *parent)
    : QDialog(parent),
      m_input(new QComboBox(this)),
      m_fields(new FieldCombo(this)),
      m_find(new QPushButton(FormTexts::Find, this))
{
    makeHintsReadable(*this);
    setObjectName(u"FindDialog"_s);
    setWindowTitle(FormTexts::FindTitle);
    setSizeGripEnabled(true);
    m_input->setObjectName(u"InputCombo1"_s);
    m_input->setAccessibleName(FormTexts::FindTitle);
    m_input->setEditable(true);
    m_input->setInsertPolicy(QComboBox::NoInsert);
    m_input->setCompleter(nullptr); // it would complete the input with earlier words
    m_input->setMinimumContentsLength(36);
    m_input->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_fields->setObjectName(u"FieldCombo1"_s);
    m_fields->setAccessibleName(FormTexts::FindInFieldName);
    m_fields->setToolTip(FormTexts::FindInFieldName);
    m_fields->setMinimumContentsLength(36);
    m_fields->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_find->setObjectName(u"FindBtn"_s);
    m_find->setDefault(true);
    auto *cancel = new QPushButton(FormTexts::Cancel, this);
    cancel->setObjectName(u"CancelBtn"_s);

    auto *inputLabel = new QLabel(FormTexts::FindWhat, this);
    inputLabel->setBuddy(m_input);
    auto *fieldLabel = new QLabel(FormTexts::FindInField, this);
    fieldLabel->setBuddy(m_fields);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_find);
    buttons->addWidget(cancel);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(inputLabel);
    rows->addWidget(m_input);
    rows->addWidget(fieldLabel);
    rows->addWidget(m_fields);
    rows->addStretch();
    rows->addLayout(buttons);

    showHint();
    // Keys go to the line edit, or to the box itself if they are sent to it.
    m_input->installEventFilter(this);
    m_input->lineEdit()->installEventFilter(this);
    connect(m_input, &QComboBox::editTextChanged, this, &FindDialog::onInputChanged);
    connect(m_input->lineEdit(), &QLineEdit::cursorPositionChanged, this, &FindDialog::keepOutOfHint);
    connect(m_input->lineEdit(), &QLineEdit::selectionChanged, this, &FindDialog::keepOutOfHint);
    connect(m_find, &QPushButton::clicked, this, &FindDialog::find);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_input->setFocus();
}

bool FindDialog::InitFrm(const colDataFields *colFields)
{
    m_fields->clear();
    if (!colFields || colFields->Count() == 0)
        return false;
    m_fields->addItem(QueryTexts::AllFields);
    for (const clsDataField &field : *colFields)
        m_fields->addItem(field.FieldName);
    m_fields->setCurrentIndex(0);
    return true;
}

void FindDialog::SetEarlierWords(const QStringList &words)
{
    m_earlierWords = words;
    m_input->clear();
    m_input->addItems(words);
    m_input->setCurrentIndex(-1);
    showHint();
}

void FindDialog::remember(const QString &words)
{
    constexpr qsizetype most = 10;
    m_earlierWords.removeOne(words);
    m_earlierWords.prepend(words);
    if (m_earlierWords.size() > most)
        m_earlierWords.removeLast();
}

void FindDialog::showHint()
{
    m_input->setEditText(FormTexts::FindHint);
    m_input->lineEdit()->setCursorPosition(0);
    // A system's border colour is hardly readable as text; the palette has a colour for hints.
    setTextColour(*m_input->lineEdit(), QPalette::PlaceholderText);
    m_isHintShown = true;
    m_find->setEnabled(false);
    m_fields->setEnabled(false);
}

void FindDialog::removeHint()
{
    if (!m_isHintShown)
        return;
    m_isHintShown = false;
    m_input->clearEditText();
    setTextColour(*m_input->lineEdit(), QPalette::ButtonText);
    m_find->setEnabled(true);
    m_fields->setEnabled(true);
}

// The hint can't be selected or edited.
void FindDialog::keepOutOfHint()
{
    QLineEdit *edit = m_input->lineEdit();
    if (m_isHintShown && (edit->hasSelectedText() || edit->cursorPosition() != 0))
        edit->setCursorPosition(0);
}

// A paste or a drop changes the text without a key. Its text must stay when the hint is removed.
void FindDialog::onInputChanged(const QString &text)
{
    if (!m_isHintShown)
        return;
    QString brought = text;
    brought.remove(FormTexts::FindHint);
    removeHint();
    m_input->setEditText(brought);
}

bool FindDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && onKey(static_cast<QKeyEvent *>(event)->key()))
        return true;
    if (event->type() == QEvent::InputMethod && carriesText(*static_cast<QInputMethodEvent *>(event)))
        removeHint();
    return QDialog::eventFilter(watched, event);
}

// Returns true if the key was handled.
bool FindDialog::onKey(int key)
{
    if (key == Qt::Key_Escape) {
        reject();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (m_isHintShown)
            reject();
        else
            find();
        return true;
    }
    if (isTyped(key))
        removeHint();
    return false;
}

void FindDialog::find()
{
    const FindAnswer answer = pressFind(m_input->currentText(), m_fields->currentText());
    if (answer.strFindText.isEmpty())
        return;
    m_strFindText = answer.strFindText;
    remember(m_input->currentText().trimmed());
    if (!answer.unloads)
        return;
    m_strFieldName = answer.strFieldName;
    m_bIsAppointField = answer.bIsAppointField;
    accept();
}

} // namespace KOVAVSFDataGridLib
