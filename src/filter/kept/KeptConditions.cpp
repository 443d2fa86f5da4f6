#include "filter/kept/KeptConditions.h"

#include "filter/FilterTexts.h"
#include "filter/kept/KeptLine.h"
#include "query/conditions/ConditionParts.h"
#include "query/conditions/ConditionTokens.h"

#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

KeptConditions::KeptConditions(QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    m_layout->setSpacing(2);
    hide();
}

bool KeptConditions::canAdd(const QString &condition) const
{
    return hasClosedBrackets(condition, m_dialect);
}

void KeptConditions::add(const QString &condition)
{
    for (const QString &part : textsOfParts(condition, m_dialect)) {
        const auto same = std::ranges::find(m_lines, part, &KeptLine::condition);
        if (same != m_lines.end()) {
            (*same)->setChecked(true);
            continue;
        }
        auto *line = new KeptLine(part, inWords(part), this);
        line->showSql(m_isSql);
        connect(line, &QCheckBox::toggled, this, &KeptConditions::changed);
        m_layout->addWidget(line);
        if (!m_lines.isEmpty())
            setTabOrder(m_lines.constLast(), line);
        m_lines.append(line);
        line->setObjectName(u"chkKept%1"_s.arg(m_lines.size()));
        line->show();
    }
    setVisible(!m_lines.isEmpty());
    Q_EMIT changed();
}

void KeptConditions::clearTicks()
{
    for (KeptLine *line : std::as_const(m_lines))
        line->setChecked(false);
}

void KeptConditions::removeAll()
{
    qDeleteAll(m_lines);
    m_lines.clear();
    hide();
}

QStringList KeptConditions::kept() const
{
    QStringList conditions;
    for (const KeptLine *line : m_lines) {
        if (line->isChecked())
            conditions.append(line->condition());
    }
    return conditions;
}

QString KeptConditions::inWords(const QString &condition) const
{
    const SqlScanner sql(condition, m_dialect);
    return conditionInWords(sql, {0, sql.count()});
}

QString KeptConditions::joinedWith(const QString &condition) const
{
    QStringList parts;
    for (const QString &each : kept())
        parts.append(isLooseCondition(each, m_dialect) ? u'(' + each + u')' : each);
    if (!condition.isEmpty())
        parts.append(condition);
    return parts.join(" AND "_L1);
}

QStringList KeptConditions::wordsOf(const QStringList &conditions) const
{
    QStringList words;
    for (const QString &condition : conditions) {
        const QString text = inWords(condition);
        words.append(isLooseCondition(condition, m_dialect) ? FilterTexts::BracketsInSentence.arg(text)
                                                            : text);
    }
    return words;
}

void KeptConditions::showSql(bool isSql)
{
    m_isSql = isSql;
    for (KeptLine *line : std::as_const(m_lines))
        line->showSql(isSql);
}

void KeptConditions::followInTabOrder(QWidget *previous)
{
    for (KeptLine *line : std::as_const(m_lines)) {
        setTabOrder(previous, line);
        previous = line;
    }
}

} // namespace KOVAVSFDataGridLib
