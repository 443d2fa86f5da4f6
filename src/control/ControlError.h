#pragma once

#include "KovaExport.h"

#include <QtCore/QString>

#include <exception>

namespace KOVAVSFDataGridLib {

// An error that the control raises to a host written in C++. A late-bound host, which can't be thrown
// at, receives the same number and text through the signal KOVAVSFDataGrid::HostError.
class KOVA_EXPORT ControlError : public std::exception
{
public:
    enum Number : qint32 {
        SetNotSupportedAtRuntime = 382,
        GetNotSupportedAtRuntime = 393,
    };

    ControlError(qint32 number, const QString &description);
    ~ControlError() override;

    qint32 number() const { return m_number; }
    QString description() const { return m_description; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    qint32 m_number;
    QString m_description;
    QByteArray m_what;
};

} // namespace KOVAVSFDataGridLib
