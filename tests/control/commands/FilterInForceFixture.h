#pragma once

#include "ColumnValuesFixture.h"

#include <QtWidgets/QComboBox>

namespace KovaTest {

// A user at the filter dialog and the conditions that are in force when it opens.
class FilterInForce : public ColumnValues
{
protected:
    static void fill(QDialog &dialog, int row, const QString &field, const QString &op, const QString &value)
    {
        const QByteArray number = QByteArray::number(row);
        if (!dialog.findChild<QComboBox *>(QStringLiteral("cmbField") + QString::number(row)))
            press(dialog, "cmdAddRow");
        part<QComboBox>(dialog, ("cmbField" + number).constData()).setCurrentText(field);
        part<QComboBox>(dialog, ("cmbOperator" + number).constData()).setCurrentText(op);
        auto &edit = part<QLineEdit>(dialog, ("txtValue" + number).constData());
        edit.clear();
        compose(edit, value);
    }
    static QString row(QDialog &dialog, int number)
    {
        const QByteArray text = QByteArray::number(number);
        const auto *field =
            dialog.findChild<QComboBox *>(QStringLiteral("cmbField") + QString::number(number));
        if (!field)
            return {};
        return field->currentText() + u' ' +
               part<QComboBox>(dialog, ("cmbOperator" + text).constData()).currentText() + u' ' +
               part<QLineEdit>(dialog, ("txtValue" + text).constData()).text();
    }
    static QStringList keptLines(const QDialog &dialog)
    {
        QStringList lines;
        for (int number = 1;; ++number) {
            const auto *line = dialog.findChild<QCheckBox *>(QStringLiteral("chkKept%1").arg(number));
            if (!line)
                return lines;
            lines.append((line->isChecked() ? QStringLiteral("x ") : QStringLiteral("  ")) + line->text());
        }
    }
    static QString sentence(const QDialog &dialog) { return part<QLabel>(dialog, "lblSentence").text(); }
    static QString counted(const QDialog &dialog)
    {
        const auto &label = part<QLabel>(dialog, "lblCount");
        EXPECT_TRUE(QTest::qWaitFor([&] { return label.text().startsWith(QStringLiteral("约 ")); }))
            << label.text().toStdString();
        return label.text();
    }
    static void ok(QDialog &dialog)
    {
        press(dialog, "cmd_Filter");
        EXPECT_FALSE(dialog.isVisible()) << part<QLabel>(dialog, "lblNotice").text().toStdString();
    }
    void filterWith(const std::function<void(QDialog &)> &use)
    {
        WindowAnswers dialogs({use});
        click(QStringLiteral("Filter"));
    }
    void filterByRow(int number, const QString &field, const QString &op, const QString &value)
    {
        filterWith([&](QDialog &dialog) {
            fill(dialog, number, field, op, value);
            ok(dialog);
        });
    }
    // A host that filters by a condition of its own instead of the dialog.
    void filterOfHost(const QString &condition)
    {
        const auto host = QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid,
                                           [&](qint32 &cancel, const QString &) {
                                               grid.PutPassQurryFilter(condition);
                                               cancel = 0;
                                           });
        click(QStringLiteral("Filter"));
        QObject::disconnect(host);
    }
    void findWords(const QString &words, const QString &field = {})
    {
        WindowAnswers dialogs({[&](QDialog &dialog) { find(dialog, words, field); }});
        click(QStringLiteral("QuickFilter"));
    }
    void tickAlone(const QString &column, const QStringList &values)
    {
        WindowAnswers dialogs({[&](QDialog &dialog) {
            tickAll(dialog, false);
            for (const QString &value : values)
                tick(dialog, value);
            press(dialog, "cmdOK");
        }});
        open(column);
    }
    QStringList ids() const { return texts(QStringLiteral("ID")); }
};

} // namespace KovaTest
