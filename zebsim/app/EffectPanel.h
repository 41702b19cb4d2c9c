#pragma once

#include <QMap>
#include <QScrollArea>
#include <QString>
#include <QVector>

class Camera;
class QCheckBox;
class QPushButton;
class QSpinBox;
class QVBoxLayout;
struct EffectNumber;
struct ImageEffect;

/// The image plug-ins of a camera, each with its switch and its numbers; of one that needs it the numbers go out by its
/// OK. On a locked camera those that work on live images stand still. GUI thread.
class EffectPanel : public QScrollArea {
    Q_OBJECT

public:
    explicit EffectPanel(QWidget* parent);

    /// Shows what the camera has now. What is typed and waits for its OK stays. `isBlocked`: nothing can be changed.
    void follow(const Camera& camera, bool isBlocked);

    /// Escape takes back what is typed, and the wheel turns only a number that has the keyboard.
    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    void switched(const QString& plugin, bool on);
    /// A value for each of the plug-in's numbers.
    void changed(const QString& plugin, const QVector<int>& values);

private:
    struct Row {
        const ImageEffect* effect = nullptr;
        QWidget* box = nullptr;
        QCheckBox* on = nullptr;
        /// Null where numbers take effect at once.
        QPushButton* ok = nullptr;
        QVector<QSpinBox*> numbers;
        /// As they were last told.
        QVector<int> values;
    };

    static void showValues(const Row& row, bool isOpen);
    void build(const QStringList& plugins);
    Row makeRow(const ImageEffect& effect);
    QSpinBox* makeNumber(const ImageEffect& effect, const EffectNumber& number, QWidget* parent);
    static QVector<int> typed(const Row& row);
    void send(const Row& row);

    QVBoxLayout* m_layout;
    QStringList m_plugins;
    QMap<QString, Row> m_rows;
};
