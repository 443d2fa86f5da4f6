#include "control/input/record/PictureFields.h"

#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "ado/Texts.h"
#include "control/input/record/FieldRules.h"
#include "control/parts/GridTexts.h"
#include "forms/FileDialog.h"
#include "forms/Messages.h"
#include "forms/value/PicturePane.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionWindow.h"

#include <QtCore/QFile>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

bool PictureFields::isBinary(const ADODB::Field &field)
{
    return field.Type() == ADODB::adBinary || field.Type() == ADODB::adVarBinary ||
           field.Type() == ADODB::adLongVarBinary;
}

void PictureFields::replace(int field)
{
    const qint64 record = m_session.result().recordset()->AbsolutePosition();
    const auto watch = std::make_shared<ResultWatch>(m_session);
    auto *const chooser = new FileDialog(&m_window, GridTexts::ChoosePicture, {}, GridTexts::PictureFiles);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setFileMode(FileDialog::ExistingFile);
    connect(chooser, &QFileDialog::fileSelected, this, [this, field, record, watch](const QString &file) {
        // If another record is current now, it must not be changed.
        if (watch->isUntouched() && m_session.result().recordset()->AbsolutePosition() == record)
            readFile(field, file);
    });
    chooser->open();
}

void PictureFields::readFile(int field, const QString &file)
{
    constexpr qint64 largest = qint64{256} * 1024 * 1024; // bytes
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return Messages::show(&m_window, GridTexts::PictureUnreadable.arg(file, source.errorString()));
    const QByteArray bytes = source.size() <= largest ? source.readAll() : QByteArray();
    if (PicturePane::formatOf(bytes).isEmpty())
        return Messages::show(&m_window, GridTexts::NoPicture.arg(file));
    write(field, bytes);
}

void PictureFields::clear(int field)
{
    write(field, {});
}

void PictureFields::write(int field, const QVariant &value)
{
    const auto session = m_session.shared_from_this(); // the host may delete the control when it is notified
    try {
        const ADODB::Notifications::Hold hold(session->notifications());
        ADODB::Field &written = session->result().recordset()->Fields().Item(field);
        if (!value.isValid() && isRequired(written))
            throw ADODB::Error(ADODB::adErrDataConversion, ADODB::Texts::valueNeeded().arg(written.Name()));
        written.PutValue(value);
    } catch (const ADODB::Error &error) {
        return session->questions().show(GridTexts::ValueRefusedPrefix() + error.Description());
    }
    session->window().refreshSingleRecord();
}

} // namespace KOVAVSFDataGridLib
