#pragma once

#include "filter/SetFilter.h"
#include "support/Dialogs.h"
#include "support/ExpectedWarnings.h"
#include "support/TestDatabase.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>
#include <gtest/gtest.h>

namespace KovaTest {

// The filter builder in a dialog on the screen, over a table of its own.
struct BuilderFixture : testing::Test
{
    BuilderFixture() : builder(new KOVAVSFDataGridLib::SetFilter(&dialog))
    {
        (new QVBoxLayout(&dialog))->addWidget(builder);
        builder->Initialize(QStringLiteral("当前使用数据表"), KOVAVSFDataGridLib::dbAccess);
        builder->SetConnectionString(database.connectionString());
        builder->SetCurrentTable(QStringLiteral("订单"));
        builder->SetTableName(QStringLiteral("订单"));
        dialog.resize(900, 500);
        present(dialog);
    }

    QComboBox &combo(const char *name) const { return part<QComboBox>(dialog, name); }
    QLineEdit &text(const char *name) const { return part<QLineEdit>(dialog, name); }
    bool exists(const char *name) const
    {
        return dialog.findChild<QWidget *>(QLatin1StringView(name)) != nullptr;
    }
    // Chooses an entry of a box by its text.
    void choose(const char *name, const QString &entry) const
    {
        const int index = combo(name).findText(entry);
        ASSERT_GE(index, 0) << qUtf8Printable(entry);
        combo(name).setCurrentIndex(index);
    }
    void type(const char *name, const QString &typed) const
    {
        text(name).setFocus();
        text(name).clear();
        compose(text(name), typed);
    }
    void fillRow(int number, const QString &field, const QString &op, const QString &value) const
    {
        const QByteArray suffix = QByteArray::number(number);
        choose("cmbField" + suffix, field);
        choose("cmbOperator" + suffix, op);
        if (!value.isEmpty())
            type("txtValue" + suffix, value);
    }
    std::string shown() const { return text("txtCondition").text().toStdString(); }
    std::string answer() { return builder->ConditionText().toStdString(); }
    std::string fault(const char *name) const { return part<QLabel>(dialog, name).text().toStdString(); }

    TestDatabase database{
        QStringLiteral("CREATE TABLE 订单 (编号 INTEGER, 城市 VARCHAR(20), 金额 NUMERIC(10,2), 下单日期 DATE,"
                       " 发货时间 TIMESTAMP, 已付款 BOOLEAN, 图 BLOB);"
                       "INSERT INTO 订单 VALUES (1, '北京', 5, '2024-01-05', NULL, 1, NULL),"
                       " (2, '上海', 6, NULL, NULL, 0, NULL), (3, '北京', 7, NULL, NULL, 0, NULL);")};
    QDialog dialog;
    KOVAVSFDataGridLib::SetFilter *builder;
    // A warning of the off-screen platform when a list opens.
    ExpectedWarning noRaise{QStringLiteral("does not support raise()")};
    ExpectedWarning noGrab{QStringLiteral("does not support grabbing the keyboard")};
};

} // namespace KovaTest
