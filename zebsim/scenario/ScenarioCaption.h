#pragma once

#include <QLabel>

/// A line at the foot of the screen, over all windows, that tells what a scenario does. It takes no keys and no clicks.
class ScenarioCaption : public QLabel {
    Q_OBJECT

public:
    /// On the screen of `viewer`, which becomes its parent.
    ScenarioCaption(const QString& scenario, QWidget& viewer);

    /// In the place of what was told before.
    void tell(const QString& text);

private:
    const QString m_scenario;
};
