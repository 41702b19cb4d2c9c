#include "ElidedLabel.h"

#include <QPainter>
#include <QTextDocument>

#include <algorithm>

namespace {
/// That it asks for room for.
constexpr int MostLetters = 60;
}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void ElidedLabel::setTexts(const QString& line, const QString& whole) {
    setText(line);
    // A tool tip takes a text with marks in it for markup.
    setToolTip(whole.isEmpty() ? QString() : Qt::convertFromPlainText(whole, Qt::WhiteSpaceNormal));
}

QSize ElidedLabel::sizeHint() const {
    const QSize whole = QLabel::sizeHint();
    return {std::min(whole.width(), MostLetters * fontMetrics().averageCharWidth()), whole.height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, fitting);
}
