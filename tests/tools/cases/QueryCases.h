#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonValue>
#include <QtCore/QString>

namespace KovaTest {

// The result of one call; throws std::exception if the name or an argument is invalid.
QJsonValue CallFunction(const QString &name, const QJsonArray &arguments);

// The same for a line of JSON; never throws. The result is one line without a line end.
QByteArray AnswerLine(const QByteArray &line);

} // namespace KovaTest
