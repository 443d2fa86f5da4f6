#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>

#include <exception>

namespace KOVAVSFDataGridLib {

// The exception that the control throws to a host written in C++. A host that uses the control by name gets
// the same number and text through the signal KOVAVSFDataGrid::HostError.
class KOVA_EXPORT ControlError : public std::exception
{
public:
    // The possible numbers.
    enum Number : qint32 {
        SetNotSupportedAtRuntime = 382, // a property that only a form editor may write
        GetNotSupportedAtRuntime = 393, // a property that only a form editor may read
    };

    // `description` is in English, because only developers of hosts see it.
    ControlError(qint32 number, const QString &description);
    ~ControlError() override;

    // One of Number.
    qint32 number() const { return m_number; }
    // What went wrong.
    QString description() const { return m_description; }
    // description() in UTF-8.
    const char *what() const noexcept override { return m_what.constData(); }

private:
    qint32 m_number;
    QString m_description;
    QByteArray m_what;
};

} // namespace KOVAVSFDataGridLib
