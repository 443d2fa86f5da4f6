#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

class EmptySession : public Session
{
public:
    explicit EmptySession(qint64 rows) : m_rows(rows) {}

    std::unique_ptr<Statement> prepare(const QString &sql, Access access,
                                       const std::function<bool()> &shouldContinue) override;
    QString tableStatement(const QString &table) const override;
    void close() override { m_isOpen = false; }
    bool isOpen() const override { return m_isOpen; }

private:
    qint64 m_rows;
    bool m_isOpen = true;
};

} // namespace ADODB
