#include "cases/QueryCases.h"

#include "cases/Sequences.h"
#include "cases/TextCases.h"

#include <QtCore/QJsonDocument>

namespace KovaTest {

using namespace Qt::StringLiterals;

QJsonValue CallFunction(const QString &name, const QJsonArray &arguments)
{
    static const QHash<QString, QJsonValue (*)(const Arguments &)> sequences{
        {u"Catalogue"_s, RunCatalogue}, {u"History"_s, RunHistory}, {u"FilterManager"_s, RunFilterManager}};
    if (const auto sequence = sequences.value(name))
        return sequence(Arguments(arguments));
    const auto text = TextCases().value(name);
    if (!text)
        throw std::invalid_argument("unknown function");
    return text(Arguments(arguments));
}

QByteArray AnswerLine(const QByteArray &line)
{
    QJsonObject answer;
    try {
        QJsonParseError parseError;
        const QJsonObject call = QJsonDocument::fromJson(line, &parseError).object();
        if (parseError.error != QJsonParseError::NoError)
            throw std::invalid_argument(parseError.errorString().toStdString());
        answer.insert(u"result", CallFunction(textOf(call.value(u"fn")), ListOf(call.value(u"args"))));
    } catch (const std::exception &error) {
        answer = {{u"error"_s, QString::fromUtf8(error.what())}};
    }
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
}

} // namespace KovaTest
