#include "AboutDialog.h"

#include "UiText.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>
#include <QWebPage>

AboutDialog::AboutDialog(const QString& pluginFile, QWidget* parent) : QDialog(parent) {
    setWindowTitle(uiText("About ZEB"));
    const QString plugin = pluginFile.isEmpty() ? uiText("none") : pluginFile;
    const QStringList lines = {
        QApplication::applicationName() % QLatin1Char(' ') % QApplication::applicationVersion(),
        uiText("A viewer with simulated cameras"),
        {},
        uiText("Plug-in: %1").arg(plugin),
        QStringLiteral("Qt %1").arg(QLatin1String(qVersion())),
        QStringLiteral("Qt WebKit %1").arg(qWebKitVersion()),
    };
    auto* text = new QLabel(lines.join(QLatin1Char('\n')), this);
    text->setObjectName(QStringLiteral("text"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setWordWrap(true);
    text->setMinimumWidth(50 * fontMetrics().averageCharWidth());
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(uiText("OK"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &AboutDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
}
