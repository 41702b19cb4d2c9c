#include "CameraBank.h"
#include "Course.h"
#include "Files.h"
#include "JsonError.h"
#include "ModelCatalogue.h"
#include "RigFile.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RigFile : public testing::Test {
protected:
    /// What a rig file with this text is refused with, without the folder's name; empty when it is taken.
    QString complaint(const QByteArray& text) {
        const QString path = folder.filePath(QStringLiteral("x.json"));
        write(path, text);
        try {
            readRig(path);
            return {};
        } catch (const JsonError& error) {
            return QString::fromUtf8(error.what()).remove(folder.path() + QLatin1Char('/'));
        }
    }

    QTemporaryDir folder;
};

/// The object with these members in place of its own. Qt's reader leaks where one of a file stands twice.
QByteArray with(const QByteArray& object, const QByteArray& members) {
    QJsonObject whole = QJsonDocument::fromJson(object).object();
    const QJsonObject given = QJsonDocument::fromJson('{' + members + '}').object();
    for (auto member = given.begin(); member != given.end(); ++member) {
        whole.insert(member.key(), member.value());
    }
    return QJsonDocument(whole).toJson(QJsonDocument::Compact);
}

/// A rig with a good device and one with these members.
QByteArray device(const QByteArray& members) {
    return R"({"devices": [{"address": "10.0.0.1", "model": "standard", "heads": [{}]}, )" +
           with(R"({"address": "10.0.0.2", "model": "standard", "heads": [{}]})", members) + "]}";
}

QByteArray head(const QByteArray& members) {
    return device(R"("heads": [{}, {)" + members + "}]");
}

QByteArray hub(const QByteArray& members) {
    return R"({"devices": [{"address": "10.0.0.1", "model": "standard", "heads": [{}]}], "hubs": [)" +
           with(R"({"address": "10.0.0.9"})", members) + "]}";
}

}  // namespace

TEST_F(RigFile, IsRefusedWithItsNameAndTheMember) {
    const struct {
        QByteArray text;
        const char* complaint;
    } cases[] = {
        {"{\n\"devices\": [", "line 2: invalid value"},
        {"\xEF\xBB\xBF{\n\"devices\":\n[],\n\"devices\": 1}", "line 4: the member \"devices\" stands twice"},
        {"[]", "line 1: an object is expected"},
        {"{}", "line 1: devices: missing"},
        {R"({"devices": [], "device": 1})", "line 1: device: there is no such member"},
        {R"({"devices": 3})", "line 1: devices: a list is expected"},
        {device(R"("model": "foo")"), "line 1: devices[1].model: no model \"foo\""},
        {R"({"devices": [{"model": "standard", "heads": [{}]}]})", "line 1: devices[0].address: missing"},
        {device(R"("address": "10.0.0.256")"), "line 1: devices[1].address: \"10.0.0.256\" is no IPv4 address"},
        {device(R"("address": "10.0.0.1")"), "line 1: devices[1].address: 10.0.0.1 is the address of devices[0]"},
        {device(R"("latency": -1)"), "line 1: devices[1].latency: a whole number from 0 to 60000 is expected"},
        {device(R"("heads": [])"), "line 1: devices[1].heads: a device has at least one head"},
        {head(R"("rate": 7)"), "line 1: devices[1].heads[1].rate: the model \"standard\" does not offer this"},
        {head(R"("locked": "yes")"), "line 1: devices[1].heads[1].locked: true or false is expected"},
        {head(R"("rate": 0.5)"), "line 1: devices[1].heads[1].rate: a whole number is expected, 0.5 is none that fits"},
        {head(R"("alerts": [1])"), "line 1: devices[1].heads[1].alerts: a list of texts is expected"},
        {head(R"("ports": [1])"), "line 1: devices[1].heads[1].ports: an object is expected"},
        {head(R"("ports": {"a": 1})"), "line 1: devices[1].heads[1].ports: \"a\" is no whole number"},
        {head(R"("customInfo": [{"name": "a"}, {"name": "a"}])"),
         "line 1: devices[1].heads[1].customInfo: item 2: the name \"a\" occurs twice"},
        {head(R"("customInfo": [{"name": "a", "value": 1}])"),
         "line 1: devices[1].heads[1].customInfo: item 1, \"value\": a text is expected"},
        {head(R"("customInfo": {})"), "line 1: devices[1].heads[1].customInfo: a list of objects is expected"},
        {head(R"("colour": 1)"), "line 1: devices[1].heads[1].colour: there is no such member"},
        {head(R"("presets": {"5": {}})"), "line 1: devices[1].heads[1].presets: there is no preset \"5\""},
        {head(R"("presets": {"1": {"name": "x"}})"),
         "line 1: devices[1].heads[1].presets: preset 1 can't keep \"name\""},
        {head(R"("presets": {"1": {"rate": 7}})"),
         "line 1: devices[1].heads[1].presets: preset 1, rate: the model \"standard\" does not offer this"},
        {head(R"("syncSource": "moon")"),
         "line 1: devices[1].heads[1].syncSource: \"external\", \"hub\", \"chain\" or an empty text is expected"},
        {R"({"devices": [], "hubs": [{"role": 0}]})", "line 1: hubs[0].address: missing"},
        {hub(R"("address": "10.0.0.1")"), "line 1: hubs[0].address: 10.0.0.1 is the address of devices[0]"},
        {hub(R"("role": 2)"),
         "line 1: hubs[0].role: 0 for the hub that makes the signal or 1 for one that passes it on is expected"},
        {hub(R"("frequency": 60, "frequencies": [50])"), "line 1: hubs[0].frequency: the hub does not offer this"},
        {hub(R"("frequencies": [50, "60"])"), "line 1: hubs[0].frequencies: a number is expected"},
        {hub(R"("frequencies": [0])"), "line 1: hubs[0].frequencies: frequencies above 0 are expected"},
        {hub(R"("latency": 60001)"), "line 1: hubs[0].latency: a whole number from 0 to 60000 is expected"},
        {R"({"devices": [], "media": [{"kind": "tape"}]})",
         "line 1: media[0].kind: one of sd, quikDrive, cfast is expected"},
        {R"({"devices": [], "media": [{"kind": "sd", "name": "A", "folder": ""}]})",
         "line 1: media[0].folder: the path of a folder is expected"},
        {R"({"devices": [], "media": [{"kind": "sd", "name": "A", "folder": "a", "capacity": "much"}]})",
         "line 1: media[0].capacity: a size as \"8 GB\" is expected"},
        {hub(R"("colour": 1)"), "line 1: hubs[0].colour: there is no such member"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(complaint(row.text), QString("x.json: ") + row.complaint) << row.text.toStdString();
    }
    EXPECT_THROW(readRig(QStringLiteral("no-such-rig")), JsonError);
}

TEST_F(RigFile, MayBringModelsOfItsOwn) {
    write(folder.filePath(QStringLiteral("own.json")),
          R"({"models": [{"name": "slow", "type": 5, "otherRates": "refuse", "rates": [1], "resolutions": [[8, 8]],
        "shutters": [1], "triggerModes": [2], "ports": {"3": 8}, "functions": [], "capabilities": [], "memory": 1,
        "exposureDelay": 1, "initial": {"rate": 1, "resolution": [8, 8], "shutter": 1, "triggerMode": 2}}]})");
    const QByteArray devices = R"("devices": [{"address": "10.0.0.1", "model": "slow", "heads": [{}]}])";
    EXPECT_EQ(complaint(R"({"models": "own.json", )" + devices + "}"), QString());
    EXPECT_EQ(readRig(folder.filePath(QStringLiteral("x.json"))).devices.first().model->exposureDelay, 1);
    EXPECT_EQ(complaint("{" + devices + "}"), QStringLiteral("x.json: line 1: devices[0].model: no model \"slow\""));
}

TEST(Rig, OfAThousandHasAnAddressForEach) {
    QSet<QString> addresses;
    const Rig rig = standardRig(1024);
    for (const RigDevice& device : rig.devices) {
        addresses.insert(device.address);
    }
    EXPECT_EQ(addresses.size(), 1024);
    EXPECT_EQ(rig.devices.last().heads.first().name, QStringLiteral("Camera 1024"));
    EXPECT_FALSE(rig.devices.last().heads.first().connected);
}
