#pragma once

#include <QtCore/QtGlobal>

#include <memory>

namespace ADODB {

class OdbcConnection;
struct OdbcEngine;

// For as long as it lives, nothing that runs on a connection can change data, as far as the engine knows how
// to keep it from that. They can be nested.
class OdbcReading
{
public:
    OdbcReading(std::shared_ptr<OdbcConnection> connection, const OdbcEngine &engine);
    ~OdbcReading();
    Q_DISABLE_COPY_MOVE(OdbcReading)

private:
    std::shared_ptr<OdbcConnection> m_connection;
    const OdbcEngine &m_engine;
};

} // namespace ADODB
