#pragma once

#include <QtCore/QObject>

namespace KOVAVSFDataGridLib::ActiveX {

// Keeps the first error that an object tells its host through the signal HostError while this lives. An
// object without that signal tells none. Calls can be made inside a call, by the listeners to its events; an
// error belongs to the innermost of them alone. For the thread of the widgets only.
class HostErrorCatcher : public QObject
{
    Q_OBJECT

public:
    explicit HostErrorCatcher(QObject &object);
    ~HostErrorCatcher() override;

    qint32 number() const { return m_number; } // 0: no error
    QString description() const { return m_description; }

private Q_SLOTS:
    void take(qint32 number, const QString &description);

private:
    static inline HostErrorCatcher *s_innermost = nullptr;

    HostErrorCatcher *const m_outer;
    qint32 m_number = 0;
    QString m_description;
};

} // namespace KOVAVSFDataGridLib::ActiveX
