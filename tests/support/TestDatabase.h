#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace KovaTest {

// A SQLite file in a temporary folder, created by
// SQLite itself and not by the code under test.
class TestDatabase
{
public:
    // Runs the script (any number of statements); an error fails the test.
    explicit TestDatabase(const QString &script, const QString &fileName = QStringLiteral("test.db"));

    void run(const QString &script);
    // The first column of the first row of a query, as text.
    QString ask(const QString &sql) const;
    QString path() const { return m_path; }
    QString connectionString() const { return QStringLiteral("Provider=SQLite;Data Source=") + m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

} // namespace KovaTest
