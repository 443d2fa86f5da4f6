#include "pages/PropertyPage.h"

#include "forms/Messages.h"
#include "forms/widgets/TextWidth.h"
#include "pages/PageTexts.h"

#include <QtCore/QMetaProperty>
#include <QtCore/QVariant>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

namespace {

// Whether the class declares the property without a setter. Any other name can be written.
bool isReadOnly(const QObject &object, const QByteArray &name)
{
    const int index = object.metaObject()->indexOfProperty(name);
    return index >= 0 && !object.metaObject()->property(index).isWritable();
}

// Lines of text that are never clipped. A layout asks for the minimum size without knowing the number of
// lines, and would shrink the other parts of a small window for them.
class Lines final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QLabel::resizeEvent(event);
        setMinimumHeight(heightForWidth(width()));
    }
};

} // namespace

PropertyPage::PropertyPage(const QString &property, const QString &textBox, const QString &label,
                           const QString &hint, QWidget *parent)
    : QWidget(parent), m_property(property), m_text(new QLineEdit(this)), m_rows(new QVBoxLayout(this))
{
    m_text->setObjectName(textBox);
    m_text->setAccessibleName(property);
    m_text->setAccessibleDescription(hint);
    m_text->setEnabled(false);
    setFocusProxy(m_text);
    auto *above = new QLabel(label, this);
    above->setBuddy(m_text);
    auto *below = new Lines(hint, this);
    below->setForegroundRole(QPalette::PlaceholderText);
    below->setWordWrap(true);
    m_rows->addWidget(above);
    m_rows->addWidget(m_text);
    m_rows->addWidget(below);
    connect(m_text, &QLineEdit::textChanged, this, [this] { PutChanged(true); });
}

QSize PropertyPage::sizeHint() const
{
    // The preferred width, not the box's minimum: a property frame may be narrower and must not clip it.
    constexpr int statementLength = 60; // characters
    // Limited by the screen: a new window is at most two thirds of it, and as high as the lines of the hint
    // need at this preferred width.
    const int widest = screen()->availableGeometry().width() / 2;
    return QWidget::sizeHint().expandedTo({std::min(widthOfDigits(*this, statementLength), widest), 0});
}

void PropertyPage::SetSelectedControls(const QList<QObject *> &controls)
{
    m_control = controls.isEmpty() ? nullptr : controls.first();
    m_text->setEnabled(m_control);
    showWhetherWritable();
    SelectionChanged();
}

void PropertyPage::showWhetherWritable()
{
    const bool isShownOnly = m_control && isReadOnly(*m_control, m_property.toLatin1());
    m_text->setReadOnly(isShownOnly);
    // No style shows this by itself.
    QPalette colours;
    if (isShownOnly)
        colours.setBrush(QPalette::Base, palette().brush(QPalette::Window));
    m_text->setPalette(colours);
}

void PropertyPage::SetWriter(Writer writer)
{
    m_writer = std::move(writer);
}

void PropertyPage::PutChanged(bool on)
{
    if (on == std::exchange(m_isChanged, on))
        return;
    Q_EMIT ChangedChanged(on);
}

void PropertyPage::SelectionChanged()
{
    m_text->setText(m_control ? m_control->property(m_property.toLatin1()).toString() : QString());
    m_text->setCursorPosition(0);
    PutChanged(false);
}

bool PropertyPage::ApplyChanges()
{
    if (!m_control)
        return false;
    const QByteArray name = m_property.toLatin1();
    if (isReadOnly(*m_control, name)) {
        if (m_control->property(name).toString() != m_text->text()) {
            Messages::show(this, PageTexts::IsReadOnly.arg(m_property), m_property, QMessageBox::Warning);
            return false;
        }
    } else if (m_writer) {
        m_writer(*m_control, m_property, m_text->text());
    } else {
        m_control->setProperty(name, m_text->text());
    }
    PutChanged(false);
    return true;
}

} // namespace KOVAVSFDataGridLib
