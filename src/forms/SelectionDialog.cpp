#include "forms/SelectionDialog.h"

#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/widgets/GradualControl.h"
#include "forms/widgets/StandardPicture.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QIcon>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int pictureSize = 16; // pixels at 96 DPI

} // namespace

SelectionDialog::SelectionDialog(const QString &name, const QString &caption, const QString &bandName,
                                 QWidget *parent)
    // Without a close button, if the platform can omit it, because it would do nothing.
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint),
      m_picture(new QLabel(this)),
      m_tableName(new QLineEdit(this)),
      m_content(new QVBoxLayout),
      m_buttons(new QHBoxLayout)
{
    makeHintsReadable(*this);
    setObjectName(name);
    setWindowTitle(caption);
    setSizeGripEnabled(true);

    auto *body = new QVBoxLayout;
    body->addLayout(m_content);
    body->addLayout(m_buttons);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    body->setContentsMargins(margin, 0, margin, margin);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(makeBand(bandName));
    rows->addLayout(body);
}

void SelectionDialog::addButtons()
{
    auto *ok = new QPushButton(FormTexts::Ok, this);
    ok->setObjectName(u"cmdOK"_s);
    ok->setDefault(true);
    auto *cancel = new QPushButton(FormTexts::Cancel, this);
    cancel->setObjectName(u"cmdCancel"_s);
    m_buttons->addStretch();
    m_buttons->addWidget(ok);
    m_buttons->addWidget(cancel);

    connect(ok, &QPushButton::clicked, this, &SelectionDialog::acceptChoice);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget *SelectionDialog::makeBand(const QString &bandName)
{
    auto *band = new GradualControl(this);
    band->setObjectName(bandName);
    m_picture->setObjectName(u"Picture1"_s);
    m_picture->setPixmap(standardPicture(*this, QStyle::SP_FileDialogDetailedView, pictureSize));

    m_tableName->setObjectName(u"txtTableName"_s);
    m_tableName->setAccessibleName(FormTexts::TableName);
    m_tableName->setReadOnly(true);
    m_tableName->setFrame(false);
    m_tableName->setFocusPolicy(Qt::ClickFocus);
    QPalette clear = m_tableName->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    clear.setColor(QPalette::Text, clear.color(QPalette::WindowText));
    m_tableName->setPalette(clear);
    QFont bold = m_tableName->font();
    bold.setBold(true);
    m_tableName->setFont(bold);

    auto *row = new QHBoxLayout(band);
    row->addWidget(m_picture);
    row->addWidget(m_tableName, 1);
    return band;
}

void SelectionDialog::SetTitle(const QString &strTitle)
{
    if (strTitle.isEmpty())
        return;
    m_tableName->setText(strTitle);
    m_tableName->setCursorPosition(0);
}

void SelectionDialog::SetPicture(const QIcon &picture)
{
    if (!picture.isNull())
        m_picture->setPixmap(picture.pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
}

void SelectionDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
}

} // namespace KOVAVSFDataGridLib
