#include "control/connection/ConnectionBuilder.h"

#include "ado/Error.h"
#include "control/connection/ConnectionTexts.h"
#include "forms/Contrast.h"
#include "forms/widgets/TextWidth.h"

#include <QtGui/QCursor>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;
using Kind = ConnectionTarget::Kind;

namespace {

constexpr auto hiddenPassword = u"●●●●●●";

QString captionOf(const ConnectionTarget &target)
{
    switch (target.kind) {
    case Kind::File:
        return fileChoiceOf(target).caption;
    case Kind::DataSource:
        return ConnectionTexts::DataSource.arg(target.name);
    case Kind::Driver:
        break;
    }
    return ConnectionTexts::Driver.arg(target.name);
}

// "&Connect to:" is "Connect to".
QString nameIn(QString label)
{
    return label.remove(u'&').chopped(1);
}

} // namespace

ConnectionBuilder::ConnectionBuilder(const Outside &outside, QWidget *parent)
    : QDialog(parent),
      m_outside(outside),
      m_target(new QComboBox(this)),
      m_form(new QFormLayout),
      m_fileRow(new QWidget(this)),
      m_file(new QLineEdit(m_fileRow)),
      m_test(new QPushButton(ConnectionTexts::Test, this)),
      m_tested(new QLabel(this)),
      m_ok(new QPushButton(ConnectionTexts::Ok, this))
{
    makeHintsReadable(*this);
    setObjectName(u"ConnectionBuilder"_s);
    setWindowTitle(ConnectionTexts::Title);
    setSizeGripEnabled(true);
    layOut();

    for (const ADODB::Provider *provider : fileProviders())
        offer({Kind::File, provider->name()}, provider->fileChoice()->caption);
    for (const QString &name : m_outside.dataSources)
        offer({Kind::DataSource, name}, captionOf({Kind::DataSource, name}));
    for (const QString &name : m_outside.drivers)
        offer({Kind::Driver, name}, captionOf({Kind::Driver, name}));
    if (m_outside.dataSources.isEmpty() && m_outside.drivers.isEmpty())
        m_target->setToolTip(ConnectionTexts::NothingInstalled);

    connect(m_target, &QComboBox::currentIndexChanged, this, &ConnectionBuilder::showTarget);
    for (QLineEdit *field : {m_file, m_server, m_port, m_database, m_user, m_password})
        connect(field, &QLineEdit::textChanged, this, &ConnectionBuilder::showResult);
    connect(m_test, &QPushButton::clicked, this, &ConnectionBuilder::test);
    showTarget();
    m_target->setFocus();
}

QLineEdit *ConnectionBuilder::addField(const QString &label, const QString &name)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(name);
    field->setAccessibleName(nameIn(label));
    m_form->addRow(label, field);
    return field;
}

void ConnectionBuilder::layOut()
{
    m_target->setObjectName(u"cmbTarget"_s);
    m_target->setAccessibleName(nameIn(ConnectionTexts::ConnectTo));
    m_file->setObjectName(u"txtFile"_s);
    m_file->setAccessibleName(nameIn(ConnectionTexts::File));
    auto *browseButton = new QPushButton(ConnectionTexts::Browse, m_fileRow);
    browseButton->setObjectName(u"cmdBrowse"_s);
    browseButton->setAutoDefault(false);
    connect(browseButton, &QPushButton::clicked, this, &ConnectionBuilder::browse);
    auto *fileLayout = new QHBoxLayout(m_fileRow);
    fileLayout->setContentsMargins({});
    fileLayout->addWidget(m_file, 1);
    fileLayout->addWidget(browseButton);

    m_form->addRow(ConnectionTexts::ConnectTo, m_target);
    auto *fileLabel = new QLabel(ConnectionTexts::File, this);
    fileLabel->setBuddy(m_file);
    m_form->addRow(fileLabel, m_fileRow);
    m_server = addField(ConnectionTexts::Server, u"txtServer"_s);
    m_port = addField(ConnectionTexts::Port, u"txtPort"_s);
    m_port->setPlaceholderText(ConnectionTexts::PortHint);
    m_database = addField(ConnectionTexts::Database, u"txtDatabase"_s);
    m_user = addField(ConnectionTexts::User, u"txtUser"_s);
    m_password = addField(ConnectionTexts::Password, u"txtPassword"_s);
    m_password->setEchoMode(QLineEdit::Password);

    m_result = addField(ConnectionTexts::Result, u"txtResult"_s);
    m_result->setReadOnly(true);
    m_result->setToolTip(ConnectionTexts::ResultHint);
    m_tested->setObjectName(u"lblTest"_s);
    m_tested->setTextFormat(Qt::PlainText);
    m_tested->setWordWrap(true);
    m_tested->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_tested->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_tested->setMinimumHeight(3 * fontMetrics().lineSpacing());

    m_test->setObjectName(u"cmdTest"_s);
    m_test->setAutoDefault(false);
    m_ok->setObjectName(u"OKButton"_s);
    m_ok->setDefault(true);
    auto *cancel = new QPushButton(ConnectionTexts::Cancel, this);
    cancel->setObjectName(u"CancelButton"_s);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_test);
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(cancel);

    auto *rows = new QVBoxLayout(this);
    rows->addLayout(m_form);
    rows->addWidget(m_tested, 1);
    rows->addLayout(buttons);
    resize(widthOfDigits(*this, 80), sizeHint().height());
}

void ConnectionBuilder::offer(const ConnectionTarget &target, const QString &caption)
{
    m_targets.push_back(target);
    m_target->addItem(caption);
}

const ConnectionTarget &ConnectionBuilder::target() const
{
    return m_targets.at(static_cast<std::size_t>(m_target->currentIndex()));
}

void ConnectionBuilder::SetConnectionString(const QString &text)
{
    try {
        m_given = ADODB::ConnectionString(text);
    } catch (const ADODB::Error &) {
        m_given = {};
    }
    const ConnectionSettings given = ConnectionSettings::read(m_given);
    auto at = std::find(m_targets.begin(), m_targets.end(), given.target);
    if (at == m_targets.end()) {
        offer(given.target, ConnectionTexts::NotInstalled.arg(captionOf(given.target)));
        at = m_targets.end() - 1;
    }
    m_target->setCurrentIndex(static_cast<int>(at - m_targets.begin()));
    m_file->setText(given.file);
    m_server->setText(given.server);
    m_port->setText(given.port);
    m_database->setText(given.database);
    m_user->setText(given.user);
    m_password->setText(given.password);
}

ConnectionSettings ConnectionBuilder::settings() const
{
    return {target(),           m_file->text(), m_server->text(),  m_port->text(),
            m_database->text(), m_user->text(), m_password->text()};
}

ADODB::ConnectionString ConnectionBuilder::composed(const ConnectionSettings &settings) const
{
    // The other keywords of the given string are meant for its own target.
    const bool isSameTarget = ConnectionSettings::read(m_given).target == settings.target;
    return settings.write(isSameTarget ? m_given : ADODB::ConnectionString());
}

QString ConnectionBuilder::connectionString() const
{
    return composed(settings()).text();
}

void ConnectionBuilder::showTarget()
{
    const bool isFile = target().isFile();
    const bool isDriver = target().kind == Kind::Driver;
    m_form->setRowVisible(m_fileRow, isFile);
    for (QLineEdit *field : {m_server, m_port, m_database})
        m_form->setRowVisible(field, isDriver);
    m_form->setRowVisible(m_user, !isFile);
    m_form->setRowVisible(m_password, target().takesPassword());
    showResult();
}

void ConnectionBuilder::showResult()
{
    const bool isComplete = !target().isFile() || !m_file->text().isEmpty();
    QString shown = composed(settings()).textWithoutPassword();
    if (target().takesPassword() && !m_password->text().isEmpty())
        shown += u";%1=%2"_s.arg(target().passwordKeywords().first(), QString::fromUtf16(hiddenPassword));
    m_result->setText(shown);
    m_result->setCursorPosition(0);
    m_tested->clear();
    m_test->setEnabled(isComplete && m_outside.test);
    m_ok->setEnabled(isComplete);
}

void ConnectionBuilder::browse()
{
    const QStringList filters{fileChoiceOf(target()).filter, ConnectionTexts::AllFiles};
    const QString file = QFileDialog::getOpenFileName(this, ConnectionTexts::BrowseTitle, m_file->text(),
                                                      filters.join(u";;"_s));
    if (!file.isEmpty())
        m_file->setText(file);
}

void ConnectionBuilder::test()
{
    m_tested->setText(ConnectionTexts::Testing);
    m_tested->repaint(); // the window doesn't repaint while connecting
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString failure = m_outside.test(connectionString());
    QApplication::restoreOverrideCursor();
    m_tested->setText(failure.isEmpty() ? ConnectionTexts::Connected
                                        : ConnectionTexts::NotConnected.arg(failure));
}

} // namespace KOVAVSFDataGridLib
