#include "start/Unattended.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

Unattended::Unattended()
{
    qApp->installEventFilter(this);
}

QString Unattended::messages() const
{
    return m_messages.join(u' ').simplified();
}

bool Unattended::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (const auto *box = qobject_cast<QMessageBox *>(watched))
            m_messages.append(box->text());
        if (auto *dialog = qobject_cast<QDialog *>(watched))
            QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

bool Unattended::print(const QTableView &grid, std::optional<int> rows)
{
    const QAbstractItemModel &model = *grid.model();
    QList<int> columns;
    for (int column = 0; column < model.columnCount(); ++column) {
        if (!grid.isColumnHidden(column))
            columns.append(column);
    }
    const auto printLine = [&columns](auto &&textOf) {
        QStringList cells;
        for (const int column : std::as_const(columns))
            cells.append(textOf(column).toString().replace(u'\t', u' ').replace(u'\n', u' ').remove(u'\r'));
        const QByteArray line = cells.join(u'\t').toUtf8() + '\n';
        std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
    };
    printLine([&](int column) { return model.headerData(column, Qt::Horizontal); });
    const int count = std::min(rows.value_or(model.rowCount()), model.rowCount());
    for (int row = 0; row < count; ++row)
        printLine([&](int column) { return model.index(row, column).data(); });
    return std::fflush(stdout) == 0;
}
