#pragma once

#include "ado/providers/odbc/reading/OdbcTypes.h"
#include "ado/values/RawValue.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>
#include <vector>

namespace ADODB {

class OdbcHandle;

// The parameter values of one statement, bound from left to right. Must live until the statement has run.
class OdbcParameters
{
public:
    explicit OdbcParameters(const OdbcHandle &statement) : m_statement(statement) {}

    // `type` is the type of the column that the value is written to or compared with. Copies the bytes.
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

// Accepts Null, qlonglong, double, QString and QByteArray. `utf8` owns the bytes of the result.
RawValue rawValue(const QVariant &value, QByteArray &utf8);

} // namespace ADODB
