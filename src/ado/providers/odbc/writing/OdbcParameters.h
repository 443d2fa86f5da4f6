#pragma once

#include "ado/providers/odbc/reading/OdbcTypes.h"
#include "ado/values/RawValue.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>
#include <vector>

namespace ADODB {

class OdbcHandle;

// The values for the parameters of one statement, from left to right. Must live until it has been run.
class OdbcParameters
{
public:
    explicit OdbcParameters(const OdbcHandle &statement) : m_statement(statement) {}

    // `type` is that of the column which the value is for or compared with. The bytes are copied.
    void bind(const RawValue &value, const OdbcTypes::Declared &type);

private:
    struct Parameter
    {
        qint64 integer = 0;
        double real = 0;
        QString text;
        QByteArray bytes;
        SQLLEN length = 0;
    };

    const OdbcHandle &m_statement;
    std::vector<std::unique_ptr<Parameter>> m_parameters;
};

// One of Null, qlonglong, double, QString, QByteArray. `utf8` keeps what the answer refers to.
RawValue rawValue(const QVariant &value, QByteArray &utf8);

} // namespace ADODB
