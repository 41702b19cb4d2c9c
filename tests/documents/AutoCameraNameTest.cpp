#include "Files.h"
#include "JS_Mediator_AutoCameraName.h"
#include "support/TestHost.h"

namespace {

TEST(AutoCameraName, TellsOfTheFileThatItReads) {
    TestHost given;
    const QString file = given.folder.filePath("names.csv");
    given.host.prefs().setValue("usercustom/cameraNameFilePath", file);
    JS_Mediator_AutoCameraName bridge(&given.host);
    EXPECT_FALSE(bridge.existsAutoCompleteFile());
    EXPECT_EQ(bridge.autoCompleteCameraList(), "[]");
    write(file, "b,3");
    Course course;
    EXPECT_TRUE(bridge.existsAutoCompleteFile());
    EXPECT_EQ(course.take().value(1), "info: \"found file. [" + file + "]\"");
}

}  // namespace
