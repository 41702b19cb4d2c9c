#include "JobKind.h"

#include "NameFamilies.h"
#include "ZebTypes.h"

#include <QHash>

JobKind jobKind(const QString& dialog) {
    static const QHash<QString, JobKind> kinds = {{QStringLiteral("layoutsavedialog"), JobKind::Layout},
                                                  {QStringLiteral("snapshotdialog"), JobKind::Snap},
                                                  {QStringLiteral("batchconverter"), JobKind::Convert},
                                                  {QStringLiteral("convertparametereditdialog"), JobKind::Convert},
                                                  {QStringLiteral("reportExportDialog"), JobKind::Report}};
    return kinds.value(dialog, JobKind::Export);
}

int fileType(JobKind kind) {
    switch (kind) {
        case JobKind::Convert:
            return zeb::ConvertedFile;
        case JobKind::Snap:
            return zeb::SnapShotFile;
        case JobKind::Report:
            return zeb::ReportFile;
        case JobKind::Layout:
            return zeb::LayoutFile;
        case JobKind::Export:
            break;
    }
    return zeb::ImageFile;
}

int previewType(const QString& dialog) {
    if (dialog == QLatin1String("fileopendialog")) {
        return zeb::UnnamedImageFile;
    }
    switch (jobKind(dialog)) {
        case JobKind::Convert:
            return zeb::UnnamedConvertedFile;
        case JobKind::Report:
            return zeb::UnnamedReportFile;
        case JobKind::Layout:
            return zeb::UnnamedLayoutFile;
        case JobKind::Snap:
        case JobKind::Export:
            break;
    }
    return zeb::OtherUnnamedImageFile;
}

QString skipFamily(JobKind kind) {
    const bool hasOwn = kind == JobKind::Layout || kind == JobKind::Report;
    return nameFamily(hasOwn ? fileType(kind) : zeb::ImageFile);
}
