#include "OffscreenScreen.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false);
    setUpOffscreen(QSize(1920, 1200));
    return RUN_ALL_TESTS();
}
