#include "Files.h"
#include "JS_Mediator_AutoCameraName.h"
#include "support/TestHost.h"

namespace {

TEST(AutoCameraName, HasNamesWithoutACategoryFirst) {
    TestHost given;
    const QString file = given.folder.filePath("names.csv");
    given.host.prefs().setValue("usercustom/cameraNameFilePath", file);
    JS_Mediator_AutoCameraName bridge(&given.host);
    EXPECT_FALSE(bridge.existsAutoCompleteFile());
    EXPECT_EQ(bridge.autoCompleteCameraList(), "[]");
    write(file, "b,3\n!,2\n,1\\\"\n,<0>");
    Course course;
    EXPECT_TRUE(bridge.existsAutoCompleteFile());
    EXPECT_EQ(course.take().value(1), "info: \"found file. [" + file + "]\"");
    EXPECT_EQ(bridge.autoCompleteCameraList(),
              R"([{"category":"","label":"1"},{"category":"","label":"0"},{"category":"!","label":"2"},)"
              R"({"category":"b","label":"3"}])");
}

}  // namespace
