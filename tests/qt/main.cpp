#include <gmock/gmock.h>

#include "ui/qt/application.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const ui::qt::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
