#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

namespace KovaTest {

// An object with the properties that the pages ask for, and nothing of the grid.
class SomeControl : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString ConnectionString MEMBER connectionString)
    Q_PROPERTY(QString SQLShow MEMBER sqlShow)
    Q_PROPERTY(QString SQLPartDisplay MEMBER sqlPartDisplay)
    Q_PROPERTY(QString RecordSource READ source)
    Q_PROPERTY(int DBType MEMBER dbType)

public:
    QString source() const { return recordSource; }

    QString connectionString;
    QString sqlShow;
    QString sqlPartDisplay;
    QString recordSource;
    int dbType = 1;
};

} // namespace KovaTest
