#include "camera/ModelCatalogue.h"
#include "camera/Rig.h"
#include "host/CameraBank.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RigFile : public testing::Test {
protected:
    /// What a rig file with this text is refused with, without the folder's name; empty when it is taken.
    QString complaint(const QByteArray& text) {
        QFile file(folder.filePath(QStringLiteral("x.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        try {
            Rig::fromFile(file.fileName());
            return {};
        } catch (const RigError& error) {
            return QString::fromUtf8(error.what()).remove(folder.path() + QLatin1Char('/'));
        }
    }

    QTemporaryDir folder;
};

QByteArray device(const QByteArray& members) {
    return R"({"devices": [{"address": "10.0.0.1", "model": "standard", "heads": [{}]}, )" + members + "]}";
}

QByteArray hub(const QByteArray& members) {
    return R"({"devices": [{"address": "10.0.0.1", "model": "standard", "heads": [{}]}], "hubs": [)" + members + "]}";
}

}  // namespace

TEST_F(RigFile, IsRefusedWithItsNameAndTheMember) {
    const struct {
        const char* what;
        QByteArray text;
        const char* complaint;
    } cases[] = {
        {"broken off", "{\n\"devices\": [", "x.json: line 2: unterminated array"},
        {"not an object", "[]", "x.json: an object is expected"},
        {"no devices", "{}", "x.json: devices: missing"},
        {"misspelt member", R"({"devices": [], "device": 1})", "x.json: device: there is no such member"},
        {"a number for the list", R"({"devices": 3})", "x.json: devices: a list is expected"},
        {"unknown model", device(R"({"address": "10.0.0.2", "model": "foo", "heads": [{}]})"),
         "x.json: devices[1].model: no model \"foo\""},
        {"no address", device(R"({"model": "standard", "heads": [{}]})"), "x.json: devices[1].address: missing"},
        {"address out of range", device(R"({"address": "10.0.0.256", "model": "standard", "heads": [{}]})"),
         "x.json: devices[1].address: \"10.0.0.256\" is no IPv4 address"},
        {"address taken", device(R"({"address": "10.0.0.1", "model": "standard", "heads": [{}]})"),
         "x.json: devices[1].address: 10.0.0.1 is the address of devices[0]"},
        {"latency below 0", device(R"({"address": "10.0.0.2", "model": "standard", "latency": -1, "heads": [{}]})"),
         "x.json: devices[1].latency: a whole number from 0 to 60000 is expected"},
        {"no head", device(R"({"address": "10.0.0.2", "model": "standard", "heads": []})"),
         "x.json: devices[1].heads: a device has at least one head"},
        {"rate not offered", device(R"({"address": "10.0.0.2", "model": "standard", "heads": [{}, {"rate": 7}]})"),
         "x.json: devices[1].heads[1].rate: the model \"standard\" does not offer this"},
        {"text for a flag", device(R"({"address": "10.0.0.2", "model": "standard", "heads": [{"locked": "yes"}]})"),
         "x.json: devices[1].heads[0].locked: true or false is expected"},
        {"fraction for a rate", device(R"({"address": "10.0.0.2", "model": "standard", "heads": [{"rate": 0.5}]})"),
         "x.json: devices[1].heads[0].rate: a whole number is expected, 0.5 is none that fits"},
        {"alerts that are no texts",
         device(R"({"address": "10.0.0.2", "model": "standard", "heads": [{"alerts": [1]}]})"),
         "x.json: devices[1].heads[0].alerts: a list of texts is expected"},
        {"head member unknown", device(R"({"address": "10.0.0.2", "model": "standard", "heads": [{"colour": 1}]})"),
         "x.json: devices[1].heads[0].colour: there is no such member"},
        {"source of the signal unknown",
         device(R"({"address": "10.0.0.2", "model": "standard", "heads": [{"syncSource": "moon"}]})"),
         "x.json: devices[1].heads[0].syncSource: \"external\", \"hub\", \"chain\" or an empty text is expected"},
        {"hub without an address", hub(R"({"role": 0})"), "x.json: hubs[0].address: missing"},
        {"address of a camera for a hub", hub(R"({"address": "10.0.0.1"})"),
         "x.json: hubs[0].address: 10.0.0.1 is the address of devices[0]"},
        {"role of a hub unknown", hub(R"({"address": "10.0.0.9", "role": 2})"),
         "x.json: hubs[0].role: 0 for the hub that makes the signal or 1 for one that passes it on is expected"},
        {"frequency that the hub does not offer",
         hub(R"({"address": "10.0.0.9", "frequency": 60, "frequencies": [50]})"),
         "x.json: hubs[0].frequency: the hub does not offer this"},
        {"text among frequencies", hub(R"({"address": "10.0.0.9", "frequencies": [50, "60"]})"),
         "x.json: hubs[0].frequencies: a number is expected"},
        {"frequency of 0 on offer", hub(R"({"address": "10.0.0.9", "frequencies": [0]})"),
         "x.json: hubs[0].frequencies: frequencies above 0 are expected"},
        {"slow hub", hub(R"({"address": "10.0.0.9", "latency": 60001})"),
         "x.json: hubs[0].latency: a whole number from 0 to 60000 is expected"},
        {"hub member unknown", hub(R"({"address": "10.0.0.9", "colour": 1})"),
         "x.json: hubs[0].colour: there is no such member"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(complaint(row.text).toStdString(), row.complaint) << row.what;
    }
    EXPECT_THROW(Rig::fromFile(QStringLiteral("no-such-rig")), RigError);
}

TEST_F(RigFile, MayBringModelsOfItsOwn) {
    QFile models(folder.filePath(QStringLiteral("own.json")));
    ASSERT_TRUE(models.open(QIODevice::WriteOnly));
    models.write(
        R"({"models": [{"name": "slow", "type": 5, "otherRates": "refuse", "rates": [1], "resolutions": [[8, 8]],
        "shutters": [1], "triggerModes": [2], "ports": {"3": 8}, "functions": [], "capabilities": [], "memory": 1,
        "initial": {"rate": 1, "resolution": [8, 8], "shutter": 1, "triggerMode": 2}}]})");
    models.close();
    const QByteArray devices = R"("devices": [{"address": "10.0.0.1", "model": "slow", "heads": [{}]}])";
    EXPECT_EQ(complaint(R"({"models": "own.json", )" + devices + "}"), QString());
    EXPECT_EQ(complaint("{" + devices + "}"), QStringLiteral("x.json: devices[0].model: no model \"slow\""));
}

TEST(Rig, OfAThousandHasAnAddressForEach) {
    QSet<QString> addresses;
    const Rig rig = Rig::standard(1024);
    for (const RigDevice& device : rig.devices) {
        addresses.insert(device.address);
    }
    EXPECT_EQ(addresses.size(), 1024);
    EXPECT_EQ(rig.devices.last().heads.first().name, QStringLiteral("Camera 1024"));
    EXPECT_FALSE(rig.devices.last().heads.first().connected);
}
