#include "ModelCatalogue.h"

#include "ImageEffects.h"
#include "JsonNode.h"
#include "Operation.h"
#include "PlainState.h"

#include <limits>

namespace {

constexpr int highest = std::numeric_limits<int>::max();

QList<QSize> readSizes(const JsonNode& node) {
    QList<QSize> sizes;
    for (const JsonNode& item : node.items()) {
        const QList<int> pair = item.numbers(1, 65535);
        if (pair.size() != 2) {
            item.fail(QStringLiteral("a list of two numbers is expected"));
        }
        sizes.append(QSize(pair[0], pair[1]));
    }
    return sizes;
}

CameraModel::RateRule readRateRule(const JsonNode& node) {
    const QString rule = node.text();
    if (rule != QStringLiteral("clamp") && rule != QStringLiteral("refuse")) {
        node.fail(QStringLiteral("\"clamp\" or \"refuse\" is expected"));
    }
    return rule == QStringLiteral("clamp") ? CameraModel::ClampRate : CameraModel::RefuseRate;
}

bool readFlag(const JsonNode& node, const QString& member) {
    return node.has(member) && node.member(member).flag();
}

/// 0 when there is none.
int readNumber(const JsonNode& node, const QString& member, int most = highest) {
    return node.has(member) ? node.member(member).number(0, most) : 0;
}

QList<int> readNumbers(const JsonNode& node, const QString& member) {
    const QList<int> numbers = node.member(member).numbers(0, highest);
    if (numbers.isEmpty()) {
        node.member(member).fail(QStringLiteral("at least one is needed"));
    }
    return numbers;
}

/// Operations that a camera in low light mode refuses.
QStringList readRefused(const JsonNode& node) {
    if (!node.has(QStringLiteral("lowLightRefuses"))) {
        return {};
    }
    const JsonNode refused = node.member(QStringLiteral("lowLightRefuses"));
    const QStringList operations = refused.texts();
    for (const QString& operation : operations) {
        if (!CameraOperation::names().contains(operation)) {
            refused.fail(QStringLiteral("there is no operation \"%1\"").arg(operation));
        }
    }
    return operations;
}

/// The signals at the ports stand beside the rest.
CameraState readInitial(const JsonNode& node, CameraModel model) {
    const QString ports = QStringLiteral("ports");
    try {
        model.initial.apply({{ports, node.member(ports).plain()}});
    } catch (const StateError& error) {
        node.failAt(error.member, error.reason);
    }
    return ModelCatalogue::readState(node.member(QStringLiteral("initial")), model);
}

void allowMembers(const JsonNode& node) {
    node.allowOnly({QStringLiteral("name"),          QStringLiteral("type"),
                    QStringLiteral("dummy"),         QStringLiteral("otherRates"),
                    QStringLiteral("rates"),         QStringLiteral("resolutions"),
                    QStringLiteral("shutters"),      QStringLiteral("triggerModes"),
                    QStringLiteral("ports"),         QStringLiteral("functions"),
                    QStringLiteral("capabilities"),  QStringLiteral("syncStatus"),
                    QStringLiteral("sharesShutter"), QStringLiteral("sharesResolution"),
                    QStringLiteral("memory"),        QStringLiteral("ctsReady"),
                    QStringLiteral("bitDepth"),      QStringLiteral("lowLightRefuses"),
                    QStringLiteral("syncCapable"),   QStringLiteral("exposureTiming"),
                    QStringLiteral("exposureDelay"), QStringLiteral("initial"),
                    QStringLiteral("presets"),       QStringLiteral("presetReboots"),
                    QStringLiteral("bootTime"),      QStringLiteral("grain"),
                    QStringLiteral("hotPixels")});
}

/// What its settings may be, and what its heads share of them.
void readLists(const JsonNode& node, CameraModel& model) {
    model.rateRule = readRateRule(node.member(QStringLiteral("otherRates")));
    for (const int rate : readNumbers(node, QStringLiteral("rates"))) {
        model.rates.append(static_cast<unsigned int>(rate));
    }
    model.resolutions = readSizes(node.member(QStringLiteral("resolutions")));
    model.shutters = readNumbers(node, QStringLiteral("shutters"));
    model.triggerModes = readNumbers(node, QStringLiteral("triggerModes"));
    const QList<int> functions = node.member(QStringLiteral("functions")).numbers(0, highest);
    model.functions = QSet<int>(functions.begin(), functions.end());
    model.capabilities = node.member(QStringLiteral("capabilities")).texts();
    model.sharesShutter = readFlag(node, QStringLiteral("sharesShutter"));
    model.sharesResolution = readFlag(node, QStringLiteral("sharesResolution"));
    model.lowLightRefuses = readRefused(node);
}

void readHardware(const JsonNode& node, CameraModel& model) {
    model.hasSyncStatus = readFlag(node, QStringLiteral("syncStatus"));
    model.syncCapable = readFlag(node, QStringLiteral("syncCapable"));
    model.exposureTiming = readNumber(node, QStringLiteral("exposureTiming"));
    model.exposureDelay = readNumber(node, QStringLiteral("exposureDelay"));
    if (node.has(QStringLiteral("bitDepth"))) {
        model.bitDepth = node.member(QStringLiteral("bitDepth")).number(8, 16);
    }
    model.ctsReady = readNumber(node, QStringLiteral("ctsReady"));
    model.presets = readNumber(node, QStringLiteral("presets"), 7);
    model.presetReboots = readFlag(node, QStringLiteral("presetReboots"));
    model.bootTime = readNumber(node, QStringLiteral("bootTime"));
    model.grain = readNumber(node, QStringLiteral("grain"), 64);
    model.hotPixels = readNumber(node, QStringLiteral("hotPixels"), 10000);
    model.memory = node.member(QStringLiteral("memory")).number(0, 1 << 24);
}

CameraModel readModel(const JsonNode& node) {
    allowMembers(node);
    CameraModel model;
    model.name = node.member(QStringLiteral("name")).text();
    model.type = node.member(QStringLiteral("type")).number(0, highest);
    model.dummy = readFlag(node, QStringLiteral("dummy"));
    readLists(node, model);
    readHardware(node, model);
    model.initial = readInitial(node, model);
    return model;
}

}  // namespace

// Q_INIT_RESOURCE must not stand in a namespace.
static void initRigResources() {
    Q_INIT_RESOURCE(zebsim_rigs);
}

const ModelCatalogue& ModelCatalogue::shipped() {
    static const ModelCatalogue catalogue = [] {
        initRigResources();
        ModelCatalogue shipped;
        shipped.addFile(QStringLiteral(":/zebsim/rigs/models.json"));
        return shipped;
    }();
    return catalogue;
}

void ModelCatalogue::addFile(const QString& path) {
    const JsonNode file = JsonNode::fromFile(path);
    file.allowOnly({QStringLiteral("models")});
    for (const JsonNode& node : file.member(QStringLiteral("models")).items()) {
        const auto model = std::make_shared<const CameraModel>(readModel(node));
        m_models.insert(model->name, model);
    }
}

CameraState ModelCatalogue::readState(const JsonNode& node, const CameraModel& model) {
    try {
        CameraState state = model.initial;
        state.apply(node.plain());
        model.check(state);
        checkPluginValues(state);
        return state;
    } catch (const StateError& error) {
        node.failAt(error.member, error.reason);
    }
}
