#pragma once

#include "PropertyPage.h"

#include <optional>

class QPushButton;

namespace KOVAVSFDataGridLib {

// Edits "ConnectionString", as text or with the connection builder.
class KOVA_EXPORT ConnectionString final : public PropertyPage
{
    Q_OBJECT

public:
    // Shows a window above `parent` in which the developer builds a connection string, starting with
    // `present`. Returns nothing if the developer cancels.
    using Builder = std::function<std::optional<QString>(QWidget *parent, const QString &present)>;

    // Shows nothing until a control is selected.
    explicit ConnectionString(QWidget *parent = nullptr);

    // Without a builder, cmd_link is disabled.
    void SetBuilder(Builder builder);

private:
    void build();
    void showWhole();

    Builder m_builder;
    QPushButton *m_link;
};

} // namespace KOVAVSFDataGridLib
