#pragma once

#include <QString>

/// What a page of saving is about, which the name of its dialog tells. Pure.
enum class JobKind { Export, Convert, Snap, Report, Layout };

/// `Export` for a name that tells nothing.
JobKind jobKind(const QString& dialog);

/// The `zeb::FileType` of its files, and that of their preview, of which nobody knows yet what they are called.
int fileType(JobKind kind);
int previewType(const QString& dialog);

/// What the keys of its frame skip begin with, as "export/".
QString skipFamily(JobKind kind);
