#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

class EmptyStatement : public Statement
{
public:
    explicit EmptyStatement(qint64 rows);

    const std::vector<FieldInfo> &fields() const override { return m_fields; }
    int columns() const override { return static_cast<int>(m_fields.size()); }
    void fetch(RowStore &rows, const std::function<bool(qint64)> &shouldContinue) override;
    std::unique_ptr<RowWriter> releaseWriter() override { return nullptr; }
    QString whyReadOnly() const override;

private:
    qint64 m_rows;
    std::vector<FieldInfo> m_fields;
};

} // namespace ADODB
