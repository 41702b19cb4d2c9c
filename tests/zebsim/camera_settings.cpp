#include "PlainState.h"
#include "support/TestHost.h"

#include <QMetaClassInfo>
#include <QMetaProperty>

#include <gtest/gtest.h>

TEST(CameraSettings, EachMemberIsOfOneKind) {
    const QMetaObject& type = CameraState::staticMetaObject;
    QStringList members;
    for (int i = 0; i < type.propertyCount(); ++i) {
        members << type.property(i).name();
    }
    QStringList marked;
    for (int i = 0; i < type.classInfoCount(); ++i) {
        marked += QString(type.classInfo(i).value()).split(' ');
    }
    members.sort();
    marked.sort();
    EXPECT_EQ(marked, members);
    EXPECT_TRUE(CameraState::settings().contains("rate"));
    EXPECT_FALSE(CameraState::settings().contains("recorded"));
}
