#include "AccessibleRole.h"

#include <QHash>
#include <QString>

QAccessible::Role accessibleRole(const QString& name) {
    static const QHash<QString, QAccessible::Role> roles{
        {QStringLiteral("grid"), QAccessible::Table},
        {QStringLiteral("table"), QAccessible::Table},
        {QStringLiteral("row"), QAccessible::Row},
        {QStringLiteral("gridcell"), QAccessible::Cell},
        {QStringLiteral("cell"), QAccessible::Cell},
        {QStringLiteral("columnheader"), QAccessible::ColumnHeader},
        {QStringLiteral("button"), QAccessible::PushButton},
        {QStringLiteral("checkbox"), QAccessible::CheckBox},
        {QStringLiteral("switch"), QAccessible::CheckBox},
        {QStringLiteral("radio"), QAccessible::RadioButton},
        {QStringLiteral("combobox"), QAccessible::ComboBox},
        {QStringLiteral("listbox"), QAccessible::List},
        {QStringLiteral("list"), QAccessible::List},
        {QStringLiteral("option"), QAccessible::ListItem},
        {QStringLiteral("listitem"), QAccessible::ListItem},
        {QStringLiteral("slider"), QAccessible::Slider},
        {QStringLiteral("spinbutton"), QAccessible::SpinBox},
        {QStringLiteral("progressbar"), QAccessible::ProgressBar},
        {QStringLiteral("tab"), QAccessible::PageTab},
        {QStringLiteral("tablist"), QAccessible::PageTabList},
        {QStringLiteral("tabpanel"), QAccessible::PropertyPage},
        {QStringLiteral("textbox"), QAccessible::EditableText},
        {QStringLiteral("link"), QAccessible::Link},
        {QStringLiteral("menu"), QAccessible::PopupMenu},
        {QStringLiteral("menuitem"), QAccessible::MenuItem},
        {QStringLiteral("dialog"), QAccessible::Dialog},
        {QStringLiteral("toolbar"), QAccessible::ToolBar},
        {QStringLiteral("note"), QAccessible::StaticText},
        {QStringLiteral("tooltip"), QAccessible::ToolTip},
        // Readers speak a notification that shows, and heed no status bar and no alert.
        {QStringLiteral("status"), QAccessible::Notification},
        {QStringLiteral("alert"), QAccessible::Notification},
    };
    return roles.value(name, QAccessible::Grouping);
}
