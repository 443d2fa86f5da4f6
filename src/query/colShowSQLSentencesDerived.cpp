#include "query/colShowSQLSentences.h"

#include "query/QueryTexts.h"
#include "query/conditions/Conditions.h"

#include <algorithm>

// The functions that derive statements by their clauses instead of as plain text.

namespace KOVAVSFDataGridLib {

namespace {

// GetTableOfSQL can find its keywords inside a string.
bool isTableFoundAsText(const QString &statement, const Derivation &derivation)
{
    return GetTableOfSQL(statement) == derivation.source();
}

} // namespace

EngineMode colShowSQLSentences::engineOf(const QString &connectionString) const
{
    return m_reader ? m_reader->engineOf(connectionString) : EngineMode();
}

std::shared_ptr<const Derivation> colShowSQLSentences::DerivationOf(const QString &statement) const
{
    if (statement.isEmpty() || !m_reader)
        return {};
    const QString line = LineOf(statement);
    EngineMode engine = engineOf(m_connString);
    if (!engine.isKnown()) {
        // A simple statement can do without the engine, which avoids waiting for a connection.
        if (m_derivations.of(line, {}, dialectOf(m_database, engine))->isSimple() ||
            !m_reader->Open(m_connString))
            return {};
        engine = engineOf(m_connString);
        if (!engine.isKnown())
            return {};
    }
    const Dialect dialect = dialectOf(m_database, engine);
    auto byText = m_derivations.of(line, {}, dialect);
    if (byText->isSimple() && !byText->needsFields())
        return byText;
    const auto fields = m_reader->Read(m_connString, line);
    return fields ? DerivationOf(line, *fields, m_connString) : byText;
}

std::shared_ptr<const Derivation> colShowSQLSentences::DerivationWithFields(const QString &statement) const
{
    auto derivation = DerivationOf(statement);
    const auto fields = derivation ? m_reader->Read(m_connString, LineOf(statement)) : std::nullopt;
    return fields ? DerivationOf(LineOf(statement), *fields, m_connString) : derivation;
}

// Each query about a star is a wait, so the database is queried only if the fields' tables can't tell.
std::shared_ptr<const Derivation> colShowSQLSentences::DerivationOf(const QString &statement,
                                                                    const std::vector<SourceField> &fields,
                                                                    const QString &connectionString) const
{
    const Dialect dialect = dialectOf(m_database, engineOf(connectionString));
    auto derivation = m_derivations.of(statement, fields, dialect);
    StarSizes sizes;
    for (const QString &star : derivation->starsToMeasure()) {
        const auto given = m_reader->Read(connectionString, derivation->statementOfStar(star));
        if (!given)
            return derivation;
        sizes.insert(star, std::ssize(*given));
    }
    for (const QString &alias : derivation->aliasesToTell()) {
        if (!m_reader->Accepts(connectionString, derivation->statementOfStar(alias)))
            sizes.insert(alias, 0);
    }
    return sizes.isEmpty() ? derivation : m_derivations.of(statement, fields, dialect, sizes);
}

std::shared_ptr<const Derivation> colShowSQLSentences::DerivationOf(const QString &statement,
                                                                    DerivationStep step) const
{
    auto derivation = DerivationOf(statement);
    if (derivation && derivation->isTextWork(step))
        return nullptr;
    return derivation && step != DerivationStep::Fields ? WithAllFieldsInside(derivation) : derivation;
}

// Fields chosen from a TOP query are chosen outside it, so that conditions and sorts can use the others.
std::shared_ptr<const Derivation>
colShowSQLSentences::WithAllFieldsInside(const std::shared_ptr<const Derivation> &shown) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest && shown->hasListAsTable() ? DerivationOf(latest->AllFields) : nullptr;
    if (!all || !all->hasListAsTable() || NamesShownAlone(*all) || all->names() == shown->names())
        return shown;
    const auto whole = DerivationOf(shown->withFieldsOf(*all));
    const auto chosen = whole ? DerivationOf(whole->asTableWith(shown->names())) : nullptr;
    return chosen ? chosen : shown;
}

// Whether conditions and sorts can use only the shown fields: DISTINCT with other fields has other rows.
bool colShowSQLSentences::NamesShownAlone(const Derivation &all) const
{
    return all.hasListAsTable() && (all.isDistinct() || !all.whyNot(DerivationStep::Condition).isEmpty());
}

QString colShowSQLSentences::WhyNot(DerivationStep step) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto derivation = latest ? DerivationOf(latest->ShowSQL, step) : nullptr;
    const QString reason = derivation ? derivation->whyNot(step) : QString();
    return reason.isEmpty() && step == DerivationStep::Fields ? WhyNoAllFields() : reason;
}

// What is derived by its text alone does not know the fields of a star.
QString colShowSQLSentences::WhyNotSorted(const QString &statement, const std::vector<SourceField> &fields,
                                          qsizetype column) const
{
    const SourceField &field = fields[static_cast<std::size_t>(column)];
    if (field.hasKnownOrder || !engineOf(m_connString).isKnown())
        return {};
    const auto derivation = DerivationOf(LineOf(statement), fields, m_connString);
    const QString question = derivation->statementOfOrder(column);
    return question.isEmpty() || m_reader->Accepts(m_connString, question)
               ? QString()
               : QueryTexts::TypeNotSorted.arg(field.name);
}

QString colShowSQLSentences::WhyNotSorted(const QString &statement, qsizetype column) const
{
    const auto fields = m_reader ? m_reader->Read(m_connString, LineOf(statement)) : std::nullopt;
    if (!fields || column < 0 || column >= std::ssize(*fields))
        return {};
    return WhyNotSorted(statement, *fields, column);
}

QStringList colShowSQLSentences::WhyNotSorted(const QString &statement) const
{
    const auto fields = m_reader ? m_reader->Read(m_connString, LineOf(statement)) : std::nullopt;
    QStringList reasons;
    while (fields && reasons.size() < std::ssize(*fields))
        reasons.append(WhyNotSorted(statement, *fields, reasons.size()));
    return reasons;
}

QString colShowSQLSentences::GetColumnRealName(const QString &shownStatement, const QStringList &shownNames,
                                               qsizetype column) const
{
    if (column < 0 || column >= shownNames.size())
        return {};
    const QString &name = shownNames.at(column);
    // Of several fields with that name, the catalogue answers the first one.
    const bool isShared = std::ranges::count(m_catalogue, name, &clsDataField::FieldName) > 1;
    const auto derivation =
        isShared ? DerivationOf(shownStatement) : DerivationOf(shownStatement, DerivationStep::Condition);
    if (!derivation || derivation->written().size() != shownNames.size())
        return GetSelFieldRealName(name);
    return derivation->written().at(column);
}

std::optional<FilteredResult> colShowSQLSentences::GetFilteredResult() const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    if (!all || (all->isSimple() && !all->isJoined() && isTableFoundAsText(latest->AllFields, *all)))
        return std::nullopt;
    // By the names in the result, not those in the statement.
    return DerivationWithFields(NamesShownAlone(*all) ? latest->ShowSQL : latest->AllFields)
        ->filteredResult();
}

QString colShowSQLSentences::GetConditionOf(const QString &statement) const
{
    if (const auto derivation = DerivationOf(statement))
        return derivation->condition();
    const auto sentence = SplitSQLSentence(LineOf(statement));
    const qsizetype word = sizeof("WHERE") - 1;
    return sentence ? sentence->where.trimmed().mid(word).trimmed() : QString();
}

QString colShowSQLSentences::GetConditionName(const clsDataField &field) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    return all && NamesByItself(*all) ? field.FieldWholeName : QString();
}

// With several tables, more than one can have a field of that name.
bool colShowSQLSentences::NamesByItself(const Derivation &all) const
{
    return all.isJoined() || !all.isTextWork(DerivationStep::Condition) ||
           !isTableFoundAsText(Latest()->AllFields, all);
}

bool colShowSQLSentences::CanName(const clsDataField &field) const
{
    const clsShowSQLSentence *const latest = Latest();
    const auto all = latest ? DerivationOf(latest->AllFields) : nullptr;
    if (!all)
        return true;
    if (!NamesShownAlone(*all))
        return !field.FieldWholeName.isEmpty() || !NamesByItself(*all);
    return DerivationWithFields(latest->ShowSQL)->names().contains(field.FieldName);
}

} // namespace KOVAVSFDataGridLib
