#pragma once

#include <QtCore/QString>

namespace KovaTest {

// While one exists, Qt messages that contain `part` do not fail the test.
class ExpectedWarning
{
public:
    explicit ExpectedWarning(const QString &part);
    ~ExpectedWarning();
    Q_DISABLE_COPY_MOVE(ExpectedWarning)

private:
    QString m_part;
};

} // namespace KovaTest
