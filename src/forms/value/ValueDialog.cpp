#include "forms/value/ValueDialog.h"

#include "forms/FormTexts.h"
#include "forms/Messages.h"
#include "forms/value/HexPane.h"
#include "forms/value/PicturePane.h"
#include "forms/value/TextPane.h"
#include "forms/widgets/TextWidth.h"

#include <QtCore/QSaveFile>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QShortcut>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTextInBytes = 64 << 20;
constexpr qsizetype longestHexCopied = 16 << 20;

// Bytes that are a text, which some tables keep in such fields.
bool isText(const QByteArray &bytes)
{
    return !bytes.isEmpty() && bytes.size() <= longestTextInBytes && !bytes.contains('\0') &&
           QByteArrayView(bytes).isValidUtf8();
}

} // namespace

ValueDialog::ValueDialog(QWidget *parent)
    : QDialog(parent), m_views(new QTabWidget(this)), m_place(new QLabel(this)), m_summary(new QLabel(this))
{
    setObjectName(u"ValueDialog"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setSizeGripEnabled(true);
    m_views->setObjectName(u"tabViews"_s);
    m_place->setObjectName(u"lblPlace"_s);
    m_place->setTextFormat(Qt::PlainText);
    m_summary->setObjectName(u"lblSummary"_s);
    m_summary->setWordWrap(true);
    const auto button = [this](const QString &caption, const QString &name) {
        auto *made = new QPushButton(caption, this);
        made->setObjectName(name);
        made->setAutoDefault(false);
        return made;
    };
    QPushButton *const copyButton = button(FormTexts::CopyValue, u"cmdCopyValue"_s);
    QPushButton *const saveButton = button(FormTexts::SaveValue, u"cmdSaveValue"_s);
    QPushButton *const closeButton = button(FormTexts::CloseValue, u"cmdCloseValue"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_summary, 1);
    buttons->addWidget(copyButton);
    buttons->addWidget(saveButton);
    buttons->addWidget(closeButton);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_place);
    rows->addWidget(m_views, 1);
    rows->addLayout(buttons);
    connect(copyButton, &QPushButton::clicked, this, &ValueDialog::copy);
    connect(saveButton, &QPushButton::clicked, this, &ValueDialog::save);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        if (auto *pane = qobject_cast<TextPane *>(m_views->currentWidget()))
            pane->beginFind();
    });
    resize(widthOfDigits(*this, 80), widthOfDigits(*this, 56));
}

void ValueDialog::show(const ShownValue &value)
{
    replace(value);
    QDialog::show();
    raise();
    activateWindow();
    m_views->currentWidget()->setFocus();
}

void ValueDialog::replace(const ShownValue &value)
{
    m_value = value;
    m_picture = {};
    m_format.clear();
    m_note.clear();
    while (m_views->count() > 0)
        delete m_views->widget(0);
    setWindowTitle(FormTexts::ValueTitle.arg(value.field));
    m_place->setText(value.place);
    if (value.isBinary)
        addBytes();
    else
        addText(value.text);
    m_views->tabBar()->setVisible(m_views->count() > 1);
    m_summary->setText(summary());
}

void ValueDialog::addText(const QString &text)
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
        m_note = FormTexts::TooLongToFormat.arg(FormattedText::longest);
    }
}

void ValueDialog::addBytes()
{
    m_format = PicturePane::formatOf(m_value.bytes);
    m_picture = m_format.isEmpty() ? QImage() : PicturePane::pictureIn(m_value.bytes);
    if (m_picture.isNull())
        m_format.clear(); // it only begins like one
    if (!m_picture.isNull())
        m_views->addTab(new PicturePane(m_picture), FormTexts::PictureTab);
    else if (isText(m_value.bytes))
        addText(QString::fromUtf8(m_value.bytes));
    m_views->addTab(new HexPane(m_value.bytes), FormTexts::HexTab);
}

QString ValueDialog::summary() const
{
    if (m_value.isNull)
        return FormTexts::NullValue;
    QStringList parts{m_value.isBinary ? FormTexts::BytesOfValue.arg(m_value.bytes.size())
                                       : FormTexts::CharactersOfValue.arg(m_value.text.size())};
    if (!m_picture.isNull())
        parts.append(FormTexts::SizeOfPicture.arg(m_picture.width()).arg(m_picture.height()));
    if (!m_format.isEmpty())
        parts.append(m_format);
    if (!m_note.isEmpty())
        parts.append(m_note);
    return parts.join(FormTexts::BetweenFacts());
}

void ValueDialog::copy()
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

QString ValueDialog::ending() const
{
    if (!m_format.isEmpty())
        return u'.' + m_format.toLower();
    return m_value.isBinary ? u".bin"_s : u".txt"_s;
}

bool ValueDialog::saveTo(const QString &file, QString &failure) const
{
    QSaveFile out(file);
    const QByteArray bytes = m_value.isBinary ? m_value.bytes : m_value.text.toUtf8();
    if (out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.commit())
        return true;
    failure = out.errorString();
    return false;
}

void ValueDialog::save()
{
    QString name = m_value.field;
    static constexpr QStringView notInNames = u"\\/:*?\"<>|";
    name.removeIf([](QChar c) { return notInNames.contains(c) || !c.isPrint(); });
    auto *chooser = new QFileDialog(this, FormTexts::SaveValueTitle, name + ending());
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    connect(chooser, &QFileDialog::fileSelected, this, [this](const QString &file) {
        if (QString failure; !saveTo(file, failure))
            Messages::show(this, FormTexts::ValueNotSaved.arg(failure), FormTexts::SaveValueTitle);
    });
    chooser->open();
}

} // namespace KOVAVSFDataGridLib
