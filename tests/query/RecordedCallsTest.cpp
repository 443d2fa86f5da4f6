#include "cases/QueryCases.h"

#include "CaseFile.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Whether the result is the expected one; null means that any value is accepted.
bool IsExpected(const QJsonValue &answer, const QJsonValue &expected)
{
    if (expected.isNull())
        return true;
    if (expected.isArray() && answer.isArray()) {
        const QJsonArray answers = answer.toArray();
        const QJsonArray all = expected.toArray();
        return std::equal(answers.begin(), answers.end(), all.begin(), all.end(), IsExpected);
    }
    if (expected.isObject() && answer.isObject()) {
        const QJsonObject members = expected.toObject();
        const QJsonObject answers = answer.toObject();
        for (auto member = members.begin(); member != members.end(); ++member) {
            if (!answers.contains(member.key()) || !IsExpected(answers.value(member.key()), member.value()))
                return false;
        }
        return true;
    }
    return answer == expected;
}

void ExpectAnswersOf(const QString &fileName)
{
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << fileName.toStdString();
    int number = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        ++number;
        const QJsonObject call = QJsonDocument::fromJson(line).object();
        ASSERT_TRUE(call.contains(u"result")) << fileName.toStdString() << ':' << number;
        const QByteArray answer = KovaTest::AnswerLine(line);
        const QJsonObject given = QJsonDocument::fromJson(answer).object();
        EXPECT_TRUE(given.contains(u"result") && IsExpected(given.value(u"result"), call.value(u"result")))
            << fileName.toStdString() << ':' << number << '\n'
            << line.toStdString() << '\n'
            << answer.toStdString();
    }
    EXPECT_GT(number, 0);
}

} // namespace

TEST(RecordedCalls, GiveTheRecordedAnswers)
{
    ExpectAnswersOf(QStringLiteral(KOVA_QUERY_DATA "/recorded_calls.jsonl"));
}

TEST(RecordedCalls, FurtherFilesCanBeTried)
{
    const QString fileName = qEnvironmentVariable("KOVA_RECORDED_CALLS");
    if (fileName.isEmpty())
        GTEST_SKIP() << "KOVA_RECORDED_CALLS names no file";
    ExpectAnswersOf(fileName);
}

TEST(RecordedCalls, UnreadableLinesAreAnsweredToo)
{
    const QByteArrayList lines{
        "",
        "[",
        "{}",
        "[]",
        "null",
        "\"a\"",
        R"({"fn": 1, "args": []})",
        R"({"fn": "Nobody", "args": []})",
        R"({"fn": "SplitText", "args": 1})",
        R"({"fn": "SplitText", "args": []})",
        R"({"fn": "SplitText", "args": ["a", "b", 1]})",
        R"({"fn": "CutStringEnds", "args": ["a", "b", "c"]})",
        R"({"fn": "ParseSelFieldList", "args": ["a", "b"]})",
        R"({"fn": "History", "args": [1]})",
        R"({"fn": "History", "args": [{"reader": {"open": [], "names": []}, "ops": [{"op": "Nobody", "args": []}]}]})",
        R"({"fn": "History", "args": [{"reader": {"open": [], "names": []}, "ops": [{"op": "Let", "args": ["Nothing", ""]}]}]})",
        R"({"fn": "FilterManager", "args": [{"reader": {"open": [], "names": []}, "ops": [{"op": "Nobody", "args": []}]}]})",
        R"({"fn": "FilterManager", "args": [{"reader": {"open": [], "names": []}, "ops": [{"op": "Let", "args": ["Nothing", ""]}]}]})",
        R"({"fn": "Catalogue", "args": [{"ops": [{"op": "Nobody", "args": []}]}]})",
    };
    for (const QByteArray &line : lines) {
        const QJsonObject answer = QJsonDocument::fromJson(KovaTest::AnswerLine(line)).object();
        EXPECT_TRUE(answer.value(u"error").isString()) << line.toStdString();
    }
}
