#pragma once

#include "query/derivation/Derivation.h"
#include "session/commands/Command.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// A command on a column, from its menu. Like a Command, it is a static Registration in a source file. Columns
// are numbered from 1.
struct ColumnCommand
{
    // Makes its caption.
    static constexpr TextTable tr{"KOVAVSFDataGridLib::ColumnCommand"};

    QString key;
    int place; // in the menu; each hundred is a group
    Text caption;
    Record record = Record::Stays;
    void (*run)(Session &session, int col);
    // The derivation from the shown statement that it needs; it can't run if that is refused.
    std::optional<DerivationStep> step = {};
    // Whether what is shown has anything for it. Null when that is always so.
    bool (*canRun)(Session &session, int col) = nullptr;
    // Why it can't run on this column, for the user to read; empty when it can. Null when it always can.
    QString (*whyNot)(Session &session, int col) = nullptr;
    // Whether it is already in effect. Null if that does not apply.
    bool (*isOn)(Session &session, int col) = nullptr;

    struct Registration
    {
        explicit Registration(ColumnCommand command);
    };

    // All commands, in their order.
    static const std::vector<const ColumnCommand *> &all();
    // Null if there is no such command.
    static const ColumnCommand *find(const QString &key);
};

} // namespace KOVAVSFDataGridLib
