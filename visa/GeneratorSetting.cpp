#include "GeneratorSetting.h"

#include <algorithm>
#include <cmath>

namespace {

const QList<QPair<const char*, const char*>> switchWords{{"OFF", "0"}, {"ON", "1"}, {"0", "0"}, {"1", "1"}};

QByteArray shortForm(const char* mnemonic) {
    QByteArray letters;
    for (const char* letter = mnemonic; *letter != '\0'; ++letter) {
        if (*letter < 'a' || *letter > 'z') {
            letters.append(*letter);
        }
    }
    return letters;
}

}  // namespace

const QList<GeneratorSetting>& GeneratorSetting::all() {
    static const QList<GeneratorSetting> settings{
        {"FUNCtion:SHAPe",
         Word,
         "SIN",
         0,
         0,
         {{"SINusoid", "SIN"},
          {"SQUare", "SQU"},
          {"RAMP", "RAMP"},
          {"PULSe", "PULS"},
          {"NOISe", "NOIS"},
          {"DC", "DC"}}},
        {"FREQuency", Number, "1000", 1e-3, 10e6},
        {"VOLTage:LOW", Number, "-0.05", -5, 5},
        {"VOLTage:HIGH", Number, "0.05", -5, 5},
        {"FUNCtion:PULSe:DCYCle", Number, "10", 0.1, 99.9},
        {"OUTPut", Word, "OFF", 0, 0, switchWords},
        {"DISPlay", Word, "ON", 0, 0, switchWords},
        {"DISPlay:TEXT", Text, "\"\""},
    };
    return settings;
}

bool GeneratorSetting::isForm(const QByteArray& given, const char* mnemonic) {
    const QByteArray upper = given.toUpper();
    return upper == shortForm(mnemonic) || upper == QByteArray(mnemonic).toUpper();
}

GeneratorSetting::Reading GeneratorSetting::read(const QByteArray& argument) const {
    if (argument.isEmpty()) {
        return {{}, "-109,\"Missing parameter\""};
    }
    switch (kind) {
        case Number:
            return readNumber(argument);
        case Word:
            return readWord(argument);
        default:
            return {argument};
    }
}

GeneratorSetting::Reading GeneratorSetting::readNumber(const QByteArray& argument) const {
    bool isNumber = false;
    const double number = argument.toDouble(&isNumber);
    if (!isNumber || std::isnan(number)) {
        return {{}, "-104,\"Data type error\""};
    }
    const double taken = std::clamp(number, lowest, highest);
    const QByteArray value = (taken < 0 ? "" : "+") + QByteArray::number(taken, 'E', 13);
    return {value, taken == number ? nullptr : "-222,\"Data out of range\""};
}

GeneratorSetting::Reading GeneratorSetting::readWord(const QByteArray& argument) const {
    const auto word = std::find_if(words.begin(), words.end(),
                                   [&argument](const auto& candidate) { return isForm(argument, candidate.first); });
    if (word == words.end()) {
        return {{}, "-224,\"Illegal parameter value\""};
    }
    return {word->second};
}
