#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonValue>
#include <QtCore/QString>

namespace KovaTest {

// The answer to one call; throws std::exception when the name or an argument is not what it should be.
QJsonValue CallFunction(const QString &name, const QJsonArray &arguments);

// The same for a line of JSON; never throws. The answer is one line without its end.
QByteArray AnswerLine(const QByteArray &line);

} // namespace KovaTest
