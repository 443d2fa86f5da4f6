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

// Builds a connection string from what is installed, and tests it.
class ConnectionBuilder final : public QDialog
{
    Q_OBJECT

public:
    // What the dialog knows of the system, provided by the caller.
    struct Outside
    {
        QStringList drivers;     // the ODBC drivers, as used in `Driver=`
        QStringList dataSources; // the ODBC data sources, as used in `DSN=`
        // Opens and closes a connection. Returns the database's error message, or an empty text on success.
        std::function<QString(const QString &connectionString)> test;
    };

    explicit ConnectionBuilder(const Outside &outside, QWidget *parent = nullptr);

    // Starts with this string, or with empty fields if it can't be parsed.
    void SetConnectionString(const QString &text);
    // The connection string of the fields, including the password.
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
