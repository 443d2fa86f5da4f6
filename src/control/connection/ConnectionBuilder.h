#pragma once

#include "control/connection/ConnectionSettings.h"

#include <QtCore/QStringList>
#include <QtWidgets/QDialog>

#include <functional>
#include <vector>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace KOVAVSFDataGridLib {

// Puts a connection string together from what is installed, and tries it.
class ConnectionBuilder final : public QDialog
{
    Q_OBJECT

public:
    // The world outside, which a caller hands in.
    struct Outside
    {
        QStringList drivers;     // the ODBC drivers, as `Driver=` takes them
        QStringList dataSources; // the ODBC data sources, as `DSN=` takes them
        // Opens and closes a connection; what the database said when that failed, else empty.
        std::function<QString(const QString &connectionString)> test;
    };

    explicit ConnectionBuilder(const Outside &outside, QWidget *parent = nullptr);

    // Begins with this string. One that can't be understood begins with nothing.
    void SetConnectionString(const QString &text);
    // What the fields make now, with the password.
    QString connectionString() const;

private:
    QLineEdit *addField(const QString &label, const QString &name);
    void layOut();
    void offer(const ConnectionTarget &target, const QString &caption);
    const ConnectionTarget &target() const;
    ConnectionSettings settings() const;
    ADODB::ConnectionString composed(const ConnectionSettings &settings) const;
    void showTarget();
    void showResult();
    void browse();
    void test();

    Outside m_outside;
    ADODB::ConnectionString m_given;
    std::vector<ConnectionTarget> m_targets; // by index of m_target
    QComboBox *m_target;
    QFormLayout *m_form;
    QWidget *m_fileRow;
    QLineEdit *m_file;
    QLineEdit *m_server = nullptr;
    QLineEdit *m_port = nullptr;
    QLineEdit *m_database = nullptr;
    QLineEdit *m_user = nullptr;
    QLineEdit *m_password = nullptr;
    QLineEdit *m_result = nullptr;
    QPushButton *m_test;
    QLabel *m_tested;
    QPushButton *m_ok;
};

} // namespace KOVAVSFDataGridLib
