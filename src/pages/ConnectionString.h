#pragma once

#include "PropertyPage.h"

#include <optional>

class QPushButton;

namespace KOVAVSFDataGridLib {

// Edits "ConnectionString", typed or built.
class KOVA_EXPORT ConnectionString final : public PropertyPage
{
    Q_OBJECT

public:
    // Lets the developer build a connection in a window above `parent`, beginning with `present`; nothing
    // when that was cancelled.
    using Builder = std::function<std::optional<QString>(QWidget *parent, const QString &present)>;

    // Shows nothing until a control is selected.
    explicit ConnectionString(QWidget *parent = nullptr);

    // Without one, cmd_link is disabled.
    void SetBuilder(Builder builder);

private:
    void build();
    void showWhole();

    Builder m_builder;
    QPushButton *m_link;
};

} // namespace KOVAVSFDataGridLib
