#include "control/input/record/RecordHeading.h"

#include "control/parts/GridTexts.h"
#include "forms/widgets/TickBoxes.h"
#include "language/Language.h"
#include "session/commands/CommandKeys.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void setHint(QWidget &widget, const QString &hint)
{
    widget.setToolTip(hint);
    widget.setAccessibleName(hint);
}

} // namespace

RecordHeading::RecordHeading(QHeaderView &header)
    : m_header(header),
      m_pictures(newPictureBox()),
      m_previous(newStepButton(CommandKeys::PreviousRecord, u"◀"_s)),
      m_next(newStepButton(CommandKeys::NextRecord, u"▶"_s))
{
    Language::keepTranslated(header, [this] { translate(); });
    header.viewport()->installEventFilter(this);
    header.installEventFilter(this);
}

QCheckBox *RecordHeading::newPictureBox()
{
    auto *const box = new CheckBox(&m_header);
    box->setObjectName(u"chkPictures"_s);
    box->setFocusPolicy(Qt::NoFocus); // Ctrl+Shift+I does the same
    connect(box, &QCheckBox::clicked, this, &RecordHeading::picturesClicked);
    return box;
}

QPushButton *RecordHeading::newStepButton(const QString &key, const QString &arrow)
{
    auto *const button = new QPushButton(arrow, &m_header);
    button->setObjectName(u"cmd"_s + key);
    button->setFlat(true);
    button->setFocusPolicy(Qt::NoFocus); // Alt+PgUp and Alt+PgDown do the same
    connect(button, &QPushButton::clicked, this, [this, key] { Q_EMIT commandWanted(key); });
    return button;
}

void RecordHeading::translate()
{
    m_pictures->setText(GridTexts::Pictures);
    m_pictures->setToolTip(GridTexts::PicturesTip);
    m_pictures->setAccessibleDescription(GridTexts::PicturesTip);
    setHint(*m_previous, GridTexts::PreviousRecord);
    setHint(*m_next, GridTexts::NextRecord);
    place(); // a check box with another text has another width
}

bool RecordHeading::hasPictures() const
{
    return m_pictures->isChecked();
}

void RecordHeading::offerPictures(bool on)
{
    m_pictures->setVisible(on);
}

bool RecordHeading::arePicturesOffered() const
{
    return m_pictures->isVisible();
}

void RecordHeading::clickPictures()
{
    m_pictures->click();
}

void RecordHeading::undoClick()
{
    m_pictures->toggle(); // only a click emits the signal
}

bool RecordHeading::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || (event->type() == QEvent::FontChange && watched == &m_header))
        place();
    return QObject::eventFilter(watched, event);
}

void RecordHeading::place()
{
    const QSize header = m_header.size();
    const int width = m_header.fontMetrics().horizontalAdvance(u"▶▶"_s);
    m_previous->setGeometry(header.width() - 2 * width, 0, width, header.height());
    m_next->setGeometry(header.width() - width, 0, width, header.height());
    const int tick = m_pictures->sizeHint().width();
    m_pictures->setGeometry(header.width() - 2 * width - tick, 0, tick, header.height());
}

} // namespace KOVAVSFDataGridLib
