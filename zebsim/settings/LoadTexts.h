#pragma once

#include "SettingTexts.h"

#include <QStringList>

struct CameraPlan;
struct LoadAnswer;
struct LoadPlan;
struct SettingPlan;

/// What a load of settings does, and what has become of it, in the user's language. GUI thread.
class LoadTexts {
public:
    /// Must outlive the object.
    explicit LoadTexts(const Translator& translator) : m_translator(translator), m_settings(translator) {}

    /// A line for each change and for all that does not come about; what is the same of several cameras is one line.
    QStringList preview(const LoadPlan& plan) const;
    /// A line a camera for what does not come about.
    QStringList oddities(const LoadPlan& plan) const;
    /// A line for each difference between what was planned and what has become of it.
    QStringList surprises(const CameraPlan& plan, const LoadAnswer& answer) const;
    QString gone(const CameraPlan& plan) const;
    /// Why all of it is left as it is.
    QString left(const CameraPlan& plan) const;

private:
    /// What there is to say of cameras, by their labels.
    using Remarks = QList<QPair<QString, QString>>;

    Remarks oddRemarks(const LoadPlan& plan) const;
    Remarks changeRemarks(const LoadPlan& plan) const;
    QStringList together(const Remarks& remarks, bool isEachNamed) const;
    QString whyLeft(const CameraPlan& plan) const;
    QString text(const SettingPlan& setting) const;
    QString why(const SettingPlan& setting) const;
    QString line(const QString& label, const QString& remark) const;

    const Translator& m_translator;
    SettingTexts m_settings;
};
