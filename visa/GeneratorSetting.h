#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

/// A setting of the function generator, and how its argument is read.
struct GeneratorSetting {
    enum Kind { Number, Word, Text };

    struct Reading {
        /// As a question about it is answered; null when the argument can't be taken.
        QByteArray value;
        /// An entry of the error queue; null when all is well.
        const char* error = nullptr;
    };

    /// Capitals are the short form.
    const char* header;
    Kind kind;
    /// The argument that a reset sets.
    const char* initial;
    /// Limits of a number.
    double lowest = 0;
    double highest = 0;
    /// The words that it takes, each with its answer.
    QList<QPair<const char*, const char*>> words = {};

    Reading read(const QByteArray& argument) const;

    static const QList<GeneratorSetting>& all();
    /// Whether `given` is the short or the long form of `mnemonic`, in letters of any size.
    static bool isForm(const QByteArray& given, const char* mnemonic);

private:
    Reading readNumber(const QByteArray& argument) const;
    Reading readWord(const QByteArray& argument) const;
};
