#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>

#include <exception>

namespace KOVAVSFDataGridLib {

// An error that the control raises to a host written in C++. A late-bound host, which can't be thrown
// at, receives the same number and text through the signal KOVAVSFDataGrid::HostError.
class KOVA_EXPORT ControlError : public std::exception
{
public:
    // The numbers that there are.
    enum Number : qint32 {
        SetNotSupportedAtRuntime = 382, // a property that only a form editor may write
        GetNotSupportedAtRuntime = 393, // a property that only a form editor may read
    };

    // `description` is English: only a host's developer meets it.
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
