#include "language/JsonFault.h"

#include "language/LanguageTexts.h"

#include <QtCore/QJsonParseError>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

Text reasonOf(QJsonParseError::ParseError error)
{
    switch (error) {
    case QJsonParseError::UnterminatedObject:
        return LanguageTexts::JsonNoBrace;
    case QJsonParseError::MissingNameSeparator:
        return LanguageTexts::JsonNoColon;
    case QJsonParseError::UnterminatedArray:
        return LanguageTexts::JsonNoBracket;
    case QJsonParseError::MissingValueSeparator:
        return LanguageTexts::JsonNoComma;
    case QJsonParseError::TerminationByNumber:
        return LanguageTexts::JsonCut;
    case QJsonParseError::IllegalEscapeSequence:
    case QJsonParseError::IllegalUTF8String:
        return LanguageTexts::JsonCharacter;
    case QJsonParseError::UnterminatedString:
        return LanguageTexts::JsonNoQuote;
    case QJsonParseError::MissingObject:
        return LanguageTexts::JsonNoName;
    case QJsonParseError::DeepNesting:
        return LanguageTexts::JsonDeep;
    case QJsonParseError::DocumentTooLarge:
        return LanguageTexts::JsonLong;
    case QJsonParseError::GarbageAtEnd:
        return LanguageTexts::JsonMore;
    default:
        return LanguageTexts::JsonValue;
    }
}

} // namespace

// The parser's offset is in bytes.
JsonFault jsonFault(const QString &text, const QJsonParseError &error)
{
    const qsizetype before = QString::fromUtf8(text.toUtf8().left(error.offset)).size();
    return {QString::number(std::max<qsizetype>(before, 1)), reasonOf(error.error)};
}

} // namespace KOVAVSFDataGridLib
