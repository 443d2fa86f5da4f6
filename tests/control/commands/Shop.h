#pragma once

#include "Hands.h"

#include "support/TestDatabase.h"

#include <gtest/gtest.h>

namespace KovaTest {

struct ShopDatabase
{
    ShopDatabase();
    TestDatabase database;
};

// A person before a control over a small shop.
//
// 商品 has the fields ID, 名称, [Unit Price], 城市, 日期, 停用 and 图片 (binary) and twelve records; 订单
// refers to the record 3. The part fields are ID and 名称.
class Shop : public testing::Test, protected ShopDatabase, protected Hands
{
protected:
    static constexpr int records = 12;
    static QString statementOfAll() { return QStringLiteral("SELECT * FROM 商品"); }
    static QString statementOfPart() { return QStringLiteral("SELECT ID,名称 FROM 商品"); }

    const QStringList AllColumns{QStringLiteral("ID"),   QStringLiteral("名称"), QStringLiteral("Unit Price"),
                                 QStringLiteral("城市"), QStringLiteral("日期"), QStringLiteral("停用"),
                                 QStringLiteral("图片")};
    const QStringList PartColumns{QStringLiteral("ID"), QStringLiteral("名称")};

    Shop();
    bool load(const QString &statement = statementOfAll(), const QString &part = statementOfPart());
    // Makes a field current in the single-record list, which gets the keyboard.
    void makeCurrent(const QString &field);
    // What the database has of 商品, in a field, and as an expression's value.
    QString stored(const QString &field, int id) const;
    QString computed(const QString &expression, int id) const;
};

} // namespace KovaTest
