#include "forms/value/ValuePane.h"

#include "forms/FileDialog.h"
#include "forms/FormTexts.h"
#include "forms/Messages.h"
#include "forms/value/HexPane.h"
#include "forms/value/PicturePane.h"
#include "forms/value/TextPane.h"
#include "forms/widgets/TextWidth.h"
#include "language/GroupedNumber.h"
#include "language/Language.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QShortcut>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTextInBytes = 64 << 20;
constexpr qsizetype longestHexCopied = 16 << 20;
constexpr int narrowDigits = 60; // in a narrower pane, the buttons are below the description

// Whether the bytes are a text, which some tables store in such fields.
bool isText(const QByteArray &bytes)
{
    return !bytes.isEmpty() && bytes.size() <= longestTextInBytes && !bytes.contains('\0') &&
           QByteArrayView(bytes).isValidUtf8();
}

} // namespace

ValuePane::ValuePane(QWidget *parent)
    : QWidget(parent),
      m_views(new QTabWidget(this)),
      m_place(new QLabel(this)),
      m_summary(new QLabel(this)),
      m_foot(new QBoxLayout(QBoxLayout::LeftToRight)),
      m_buttons(new QBoxLayout(QBoxLayout::LeftToRight))
{
    m_views->setObjectName(u"tabViews"_s);
    m_place->setObjectName(u"lblPlace"_s);
    m_place->setTextFormat(Qt::PlainText);
    m_place->setWordWrap(true);
    m_summary->setObjectName(u"lblSummary"_s);
    m_summary->setWordWrap(true);
    const auto button = [this](const QString &name) {
        auto *made = new QPushButton(this);
        made->setObjectName(name);
        made->setAutoDefault(false);
        m_buttons->addWidget(made);
        return made;
    };
    m_buttons->addStretch();
    m_copy = button(u"cmdCopyValue"_s);
    m_save = button(u"cmdSaveValue"_s);
    m_foot->addWidget(m_summary, 1);
    m_foot->addLayout(m_buttons);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_place);
    rows->addWidget(m_views, 1);
    rows->addLayout(m_foot);
    connect(m_copy, &QPushButton::clicked, this, &ValuePane::copy);
    connect(m_save, &QPushButton::clicked, this, &ValuePane::save);
    auto *find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, [this] {
        if (auto *pane = qobject_cast<TextPane *>(m_views->currentWidget()))
            pane->beginFind();
    });
    clear();
    Language::keepTranslated(*this, [this] {
        m_copy->setText(FormTexts::CopyValue);
        m_save->setText(FormTexts::SaveValue);
        dropAccessKeys();
        if (m_views->count() == 0)
            return;
        const ShownValue value = m_value;
        put(value);
    });
}

void ValuePane::put(const ShownValue &value)
{
    const bool hasFocus = m_views->isAncestorOf(window()->focusWidget());
    clear(); // deletes what may have the focus
    m_value = value;
    m_place->setText(value.place);
    if (value.isBinary)
        addBytes();
    else
        addText(value.text);
    m_views->tabBar()->setVisible(m_views->count() > 1);
    m_summary->setText(summary());
    setUsable(true);
    dropAccessKeys();
    if (hasFocus)
        focusValue();
}

void ValuePane::putHasAccessKeys(bool on)
{
    m_hasAccessKeys = on;
    dropAccessKeys();
}

void ValuePane::dropAccessKeys()
{
    if (m_hasAccessKeys)
        return;
    static const QRegularExpression key(u"\\(&.\\)|&"_s);
    for (QPushButton *const button : findChildren<QPushButton *>())
        button->setText(button->text().remove(key));
}

void ValuePane::clear()
{
    m_value = {};
    m_picture = {};
    m_format.clear();
    m_note.clear();
    while (m_views->count() > 0)
        delete m_views->widget(0);
    m_place->clear();
    m_summary->clear();
    setUsable(false);
}

void ValuePane::setUsable(bool isUsable)
{
    m_views->setEnabled(isUsable);
    m_copy->setEnabled(isUsable);
    m_save->setEnabled(isUsable);
}

void ValuePane::focusValue()
{
    if (QWidget *const view = m_views->currentWidget())
        view->setFocus();
}

void ValuePane::addButton(QWidget *button)
{
    m_buttons->addWidget(button);
}

void ValuePane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    Q_EMIT shown();
}

void ValuePane::focusInEvent(QFocusEvent *)
{
    focusValue();
}

void ValuePane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool isNarrow = width() < widthOfDigits(*this, narrowDigits);
    m_foot->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void ValuePane::addText(const QString &text)
{
    m_views->addTab(new TextPane(text), FormTexts::TextTab);
    if (const auto formatted = FormattedText::of(text)) {
        const bool isJson = formatted->kind == FormattedText::Kind::Json;
        m_format = isJson ? u"JSON"_s : u"XML"_s;
        auto *pane = new TextPane(formatted->text);
        pane->colourAs(formatted->kind);
        m_views->setCurrentIndex(m_views->addTab(pane, m_format));
    } else if (const QChar first = text.isEmpty() ? QChar() : text.at(0);
               text.size() > FormattedText::longest && (first == u'{' || first == u'[' || first == u'<')) {
        m_note = FormTexts::TooLongToFormat.arg(grouped(FormattedText::longest));
    }
}

void ValuePane::addBytes()
{
    m_format = PicturePane::formatOf(m_value.bytes);
    m_picture = m_format.isEmpty() ? QImage() : PicturePane::pictureIn(m_value.bytes);
    if (m_picture.isNull())
        m_format.clear(); // only its beginning looks like a picture
    if (!m_picture.isNull())
        m_views->addTab(new PicturePane(m_picture), FormTexts::PictureTab);
    else if (isText(m_value.bytes))
        addText(QString::fromUtf8(m_value.bytes));
    m_views->addTab(new HexPane(m_value.bytes), FormTexts::HexTab);
}

QString ValuePane::summary() const
{
    if (m_value.isNull)
        return FormTexts::NullValue;
    QStringList parts{m_value.isBinary ? FormTexts::BytesOfValue(m_value.bytes.size())
                                       : FormTexts::CharactersOfValue(m_value.text.size())};
    if (!m_picture.isNull())
        parts.append(FormTexts::SizeOfPicture.arg(m_picture.width()).arg(m_picture.height()));
    if (!m_format.isEmpty())
        parts.append(m_format);
    if (!m_note.isEmpty())
        parts.append(m_note);
    return parts.join(FormTexts::BetweenFacts());
}

void ValuePane::copy()
{
    QClipboard &clipboard = *QGuiApplication::clipboard();
    if (!m_value.isBinary)
        clipboard.setText(m_value.text);
    else if (!m_picture.isNull())
        clipboard.setImage(m_picture);
    else if (isText(m_value.bytes))
        clipboard.setText(QString::fromUtf8(m_value.bytes));
    else if (m_value.bytes.size() <= longestHexCopied)
        clipboard.setText(QString::fromLatin1(m_value.bytes.toHex()));
    else
        Messages::show(this, FormTexts::TooLongToCopy, FormTexts::ValueTitle.arg(m_value.field));
}

QString ValuePane::ending() const
{
    if (!m_format.isEmpty())
        return u'.' + m_format.toLower();
    return m_value.isBinary ? u".bin"_s : u".txt"_s;
}

bool ValuePane::saveTo(const QString &file, QString &failure) const
{
    QSaveFile out(file);
    const QByteArray bytes = m_value.isBinary ? m_value.bytes : m_value.text.toUtf8();
    if (out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.commit())
        return true;
    failure = out.errorString();
    return false;
}

void ValuePane::save()
{
    QString name = m_value.field;
    static constexpr QStringView notInNames = u"\\/:*?\"<>|";
    name.removeIf([](QChar c) { return notInNames.contains(c) || !c.isPrint(); });
    auto *chooser = new FileDialog(this, FormTexts::SaveValueTitle, name + ending(), {});
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    connect(chooser, &QFileDialog::fileSelected, this, [this](const QString &file) {
        if (QString failure; !saveTo(file, failure))
            Messages::show(this, FormTexts::ValueNotSaved.arg(failure), FormTexts::SaveValueTitle);
    });
    chooser->open();
}

} // namespace KOVAVSFDataGridLib
