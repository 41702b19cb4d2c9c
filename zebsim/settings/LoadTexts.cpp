#include "LoadTexts.h"

#include "LoadPlan.h"
#include "SettingsLoad.h"
#include "TextKey.h"
#include "Translator.h"

namespace {

/// Cameras that a line names before it counts the rest.
constexpr int MostNamed = 3;

}  // namespace

QStringList LoadTexts::preview(const LoadPlan& plan) const {
    return together(oddRemarks(plan), true) + together(changeRemarks(plan), false);
}

QStringList LoadTexts::oddities(const LoadPlan& plan) const {
    QStringList lines;
    for (const auto& [label, remark] : oddRemarks(plan)) {
        lines << line(label, remark);
    }
    return lines;
}

LoadTexts::Remarks LoadTexts::oddRemarks(const LoadPlan& plan) const {
    Remarks remarks;
    for (const QString& address : plan.absent) {
        remarks.append({address, m_translator.translate(TextKey("there is no such camera"))});
    }
    for (const CameraPlan& camera : plan.cameras) {
        if (camera.left != CameraPlan::Taken) {
            remarks.append({camera.camera.label, whyLeft(camera)});
        }
        for (const SettingPlan& setting : camera.settings) {
            if (setting.why != SettingPlan::AsAsked) {
                remarks.append({camera.camera.label, text(setting)});
            }
        }
        if (!camera.notInFile.isEmpty()) {
            const QString missing = m_translator.translate(TextKey("not in the file: %1"));
            remarks.append({camera.camera.label, missing.arg(m_settings.labels(camera.notInFile))});
        }
    }
    return remarks;
}

LoadTexts::Remarks LoadTexts::changeRemarks(const LoadPlan& plan) const {
    QMap<int, Remarks> bySetting;
    for (const CameraPlan& camera : plan.cameras) {
        for (const SettingPlan& setting : camera.settings) {
            if (setting.why == SettingPlan::AsAsked) {
                const int place = CameraState::settings().indexOf(setting.name);
                bySetting[place].append({camera.camera.label, text(setting)});
            }
        }
    }
    Remarks remarks;
    for (const Remarks& ofSetting : bySetting) {
        remarks += ofSetting;
    }
    return remarks;
}

QStringList LoadTexts::together(const Remarks& remarks, bool isEachNamed) const {
    QStringList order;
    QHash<QString, QStringList> labels;
    for (const auto& [label, remark] : remarks) {
        if (!labels.contains(remark)) {
            order << remark;
        }
        labels[remark] << label;
    }
    QStringList lines;
    for (const QString& remark : order) {
        const QStringList all = labels.value(remark);
        const bool isWhole = isEachNamed || all.size() <= MostNamed + 1;
        const QString named = QStringList(all.mid(0, isWhole ? all.size() : MostNamed)).join(QStringLiteral(", "));
        const QString more = m_translator.translate(TextKey("%1 and %2 more"));
        lines << line(isWhole ? named : more.arg(named, QString::number(all.size() - MostNamed)), remark);
    }
    return lines;
}

QString LoadTexts::whyLeft(const CameraPlan& plan) const {
    switch (plan.left) {
        case CameraPlan::NotInFile:
            return m_translator.translate(TextKey("it is not in the file"));
        case CameraPlan::Gone:
            return m_translator.translate(TextKey("the camera is gone"));
        case CameraPlan::NotConnected:
            return m_translator.translate(TextKey("it is not connected, and stays as it is"));
        case CameraPlan::Locked:
            return m_translator.translate(TextKey("it is locked, and stays as it is"));
        case CameraPlan::Armed:
            return m_translator.translate(TextKey("it is armed, and stays as it is"));
        default:
            return m_translator.translate(TextKey("it records, and stays as it is"));
    }
}

QString LoadTexts::text(const SettingPlan& setting) const {
    const QString label = m_settings.label(setting.name);
    const QString from = m_settings.value(setting.name, setting.from);
    const QString change =
        setting.isChange()
            ? m_translator.translate(TextKey("%1 %2 → %3")).arg(label, from, m_settings.value(setting.name, setting.to))
            : m_translator.translate(TextKey("%1 stays %2")).arg(label, from);
    return setting.why == SettingPlan::AsAsked ? change
                                               : m_translator.translate(TextKey("%1 (%2)")).arg(change, why(setting));
}

QString LoadTexts::why(const SettingPlan& setting) const {
    switch (setting.why) {
        case SettingPlan::LongerThanFrame:
            return m_translator.translate(TextKey("no exposure lasts longer than a frame"));
        case SettingPlan::HeadsDiffer:
            return m_translator.translate(TextKey("all heads of the device share it, and the file has them differ"));
        case SettingPlan::OtherHeadIsLeft:
            return m_translator.translate(TextKey("another head of the device shares it, and stays as it is"));
        default:
            return m_translator.translate(TextKey("%1 is not offered"))
                .arg(m_settings.value(setting.name, setting.asked));
    }
}

QStringList LoadTexts::surprises(const CameraPlan& plan, const LoadAnswer& answer) const {
    const QString& label = plan.camera.label;
    QStringList lines;
    QStringList refused;
    for (const LoadAnswer::Refusal& refusal : answer.refusals) {
        lines << line(label, line(m_settings.labels(refusal.settings), m_translator.translate(refusal.reason)));
        refused += refusal.settings;
    }
    if (answer.left != CameraPlan::Taken) {
        CameraPlan left = plan;
        left.left = answer.left;
        return {this->left(left)};
    }
    if (!answer.whyUnread.isEmpty()) {
        const QString unread = m_translator.translate(TextKey("its settings could not be read back: %1"));
        lines << line(label, unread.arg(m_translator.translate(answer.whyUnread)));
        return lines;
    }
    const QString adjusted = m_translator.translate(TextKey("%1: %2 asked, %3 taken"));
    for (auto expected = plan.expected.begin(); expected != plan.expected.end(); ++expected) {
        const QVariant is = answer.settings.value(expected.key());
        if (is != *expected && !refused.contains(expected.key())) {
            lines << line(label,
                          adjusted.arg(m_settings.label(expected.key()), m_settings.value(expected.key(), *expected),
                                       m_settings.value(expected.key(), is)));
        }
    }
    return lines;
}

QString LoadTexts::gone(const CameraPlan& plan) const {
    return line(plan.camera.label, m_translator.translate(TextKey("the camera is gone")));
}

QString LoadTexts::left(const CameraPlan& plan) const {
    return line(plan.camera.label, whyLeft(plan));
}

QString LoadTexts::line(const QString& label, const QString& remark) const {
    return label % QStringLiteral(": ") % remark;
}
