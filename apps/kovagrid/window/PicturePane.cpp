#include "window/PicturePane.h"

#include "HostTexts.h"

#include <KOVAVSFDataGrid>

using namespace Qt::StringLiterals;

namespace {

// Reads the grid's result by name, as any host can, without a file.
QPixmap pictureOf(QObject &records)
{
    if (records.property("RecordCount").toInt() == 0 || records.property("BOF").toBool() ||
        records.property("EOF").toBool())
        return {};
    auto *fields = records.property("Fields").value<QObject *>();
    const int count = fields ? fields->property("Count").toInt() : 0;
    for (int index = 0; index < count; ++index) {
        QObject *field = nullptr;
        QMetaObject::invokeMethod(&records, "Fields", Q_RETURN_ARG(QObject *, field), Q_ARG(qint32, index));
        const QVariant value = field ? field->property("Value") : QVariant();
        QPixmap picture;
        if (value.typeId() == QMetaType::QByteArray && picture.loadFromData(value.toByteArray()))
            return picture;
    }
    return {};
}

} // namespace

PicturePane::PicturePane(QWidget *parent) : QLabel(HostTexts::NoPicture(), parent)
{
    setObjectName(u"picture"_s);
    setAlignment(Qt::AlignCenter);
    setMinimumSize(96, 64);
}

void PicturePane::showRecordOf(const KOVAVSFDataGrid &grid)
{
    QObject *const records = grid.RecordSet();
    m_picture = records ? pictureOf(*records) : QPixmap();
    fit();
}

void PicturePane::fit()
{
    if (m_picture.isNull()) {
        setText(HostTexts::NoPicture());
        return;
    }
    const double ratio = devicePixelRatioF();
    QPixmap fitted = m_picture.scaled((QSizeF(contentsRect().size()) * ratio).toSize(), Qt::KeepAspectRatio,
                                      Qt::SmoothTransformation);
    fitted.setDevicePixelRatio(ratio);
    setPixmap(fitted);
}

void PicturePane::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}
