#pragma once

#include <QtCore/QObject>

namespace KOVAVSFDataGridLib::ActiveX {

// Records the first error that an object reports through its signal HostError while this exists. An object
// without that signal reports none. Listeners to events can make calls inside a call; an error belongs only
// to the innermost call. Use it only on the widgets' thread.
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
