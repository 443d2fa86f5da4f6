#pragma once

#include "JourneyDatabase.h"

#include "../control/commands/Hands.h"

#include <gtest/gtest.h>

#include <memory>

namespace KovaTest {

// Gives each test of a suite every engine that is there; the tests of the others skip and say why.
class EngineTest : public testing::TestWithParam<JourneyEngine>
{
protected:
    void SetUp() override;

    const JourneyEngine &engine = GetParam();
    std::unique_ptr<JourneyDatabase> database;
    std::unique_ptr<Hands> hands; // before a control that is connected but has loaded nothing
};

// A user before a small shop on each engine.
//
// journey_goods has the fields id, 名称, the engine's unitPrice, qty, 城市, 日期, 停用 and 图片 (binary) and
// twelve records; journey_orders refers to the record 3, unless the engine spreads journey_goods over several
// databases. The part fields are id and 名称.
class EngineJourney : public EngineTest
{
protected:
    void SetUp() override;

    bool load();
    QStringList allFields() const;
    // The ids shown, in the order shown.
    QStringList ids() const { return hands->texts(QStringLiteral("id")); }

    // The price as the dialogs write it.
    QString writtenPrice() const;

    const QString price = QString::fromLatin1(GetParam().unitPrice);
    const QStringList partFields{QStringLiteral("id"), QStringLiteral("名称")};
};

// A row of the filter builder, filled in and applied.
void buildFilter(QDialog &dialog, const QString &field, const QString &op, const QString &value);

} // namespace KovaTest

// One ctest entry holds all engines; the names tell them apart.
#define KOVA_ON_ALL_ENGINES(suite)                                                                           \
    INSTANTIATE_TEST_SUITE_P(Engines, suite, testing::ValuesIn(KovaTest::journeyEngines()),                  \
                             [](const auto &engine) { return std::string(engine.param.name); })
