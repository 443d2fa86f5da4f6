#pragma once

#include "filter/FilterSource.h"
#include "filter/conditions/TickedValues.h"
#include "filter/mod_Filter.h"

#include <QtWidgets/QDialog>

class QPushButton;

namespace KOVAVSFDataGridLib {

class ValueTicks;

// Lets the user choose records by ticking values of one field.
class TicksDialog final : public QDialog
{
    Q_OBJECT

public:
    // What he leaves the dialog for.
    enum Result { Cancelled = Rejected, Chosen = Accepted, WantsBuilder };

    // `request.field` is the field's caption and `written` how statements write it. `request.built` is what
    // Built() answered for an earlier choice.
    TicksDialog(const FilterRequest &request, const QString &written, QWidget *parent = nullptr);

    // The condition of what is ticked; empty when that is everything.
    const QString &condition() const { return m_condition; }
    QString Built() const;

private:
    ValueRequest requestFor(const QString &search);
    void readField(const QString &caption, const QString &written);
    void layOut();
    void choose();

    FilterSource m_source;
    QString m_records; // the condition that they meet
    FilterField m_field;
    QString m_fault;
    QString m_condition;
    ValueTicks *m_ticks;
    QPushButton *m_ok;
};

} // namespace KOVAVSFDataGridLib
