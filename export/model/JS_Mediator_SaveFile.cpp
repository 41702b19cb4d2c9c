#include "JS_Mediator_SaveFile.h"

#include "BridgeCall.h"
#include "DateText.h"
#include "FolderChoice.h"
#include "GUI_AddNumberDialog.h"
#include "GUI_CustomInfoDialog.h"
#include "ModalRun.h"
#include "MultiPaths.h"
#include "NameFamilies.h"
#include "SizeText.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QDateTime>
#include <QStorageInfo>

namespace {

const QStringList PictureFormats = {QStringLiteral("BMP"), QStringLiteral("TIFF"), QStringLiteral("JPEG"),
                                    QStringLiteral("PNG")};
const QStringList RawFormats = {QStringLiteral("RAWW"), QStringLiteral("MRAW")};
const QStringList VideoFormats = {QStringLiteral("AVI"), QStringLiteral("MOV"), QStringLiteral("MP4")};
const QStringList Codecs = {QStringLiteral("RAW"),   QStringLiteral("H264"),  QStringLiteral("MJPEG"),
                            QStringLiteral("MPEG2"), QStringLiteral("MPEG4"), QStringLiteral("HUFFYUV")};

/// Where numbers of a group directory have their digits. A layout has none, and shows those of images.
int groupSlot(JobKind kind) {
    return groupDirSlot(fileType(kind == JobKind::Layout ? JobKind::Export : kind));
}

/// Whose digits are edited: a report has no dialog of its own for them.
JobKind editedKind(JobKind kind) {
    return kind == JobKind::Report ? JobKind::Export : kind;
}

/// The value of an item in "name:value,name:value"; nothing when `name` is nowhere in the text.
std::optional<QString> shownValue(const QString& items, const QString& name) {
    if (!items.contains(name)) {
        return std::nullopt;
    }
    for (const QString& item : items.split(QLatin1Char(','))) {
        if (item.section(QLatin1Char(':'), 0, 0) == name) {
            return item.section(QLatin1Char(':'), 1);
        }
    }
    return QString();
}

}  // namespace

JS_Mediator_SaveFile::JS_Mediator_SaveFile(ZebHost* host, const QString& parentWidgetName, QObject* parent)
    : JS_Mediator(host, QStringLiteral("savefile"), parent),
      m_kind(jobKind(parentWidgetName)),
      m_parentWidgetName(parentWidgetName),
      m_tal2(host) {}

void JS_Mediator_SaveFile::accept() {
    call(*this, Traced, __func__, {}, [this] { Q_EMIT accepted(); });
}

void JS_Mediator_SaveFile::reject() {
    call(*this, Traced, __func__, {}, [this] { Q_EMIT rejected(); });
}

void JS_Mediator_SaveFile::refresh() {
    call(*this, Traced, __func__, {}, [this] { Q_EMIT refreshed(); });
}

QString JS_Mediator_SaveFile::selectFolder(const QString& dir) {
    return call(*this, Action, __func__, {{"dir", dir}}, [&] {
        const QString folder = chooseFolder(host(), dir);
        return folder.isEmpty() || folder.endsWith(QLatin1Char('/')) ? folder : QString(folder % QLatin1Char('/'));
    });
}

void JS_Mediator_SaveFile::numberSetting4GroupDir() {
    call(*this, Action, __func__, {}, [this] { editNumber(groupSlot(editedKind(m_kind))); });
}

void JS_Mediator_SaveFile::numberSetting4SubDir() {
    call(*this, Action, __func__, {}, [this] { editNumber(subDirSlot(fileType(editedKind(m_kind)))); });
}

void JS_Mediator_SaveFile::numberSetting4FileName() {
    call(*this, Action, __func__, {}, [this] { editNumber(fileNameSlot(fileType(editedKind(m_kind)))); });
}

void JS_Mediator_SaveFile::editNumber(int slot) {
    ModalRun(new GUI_AddNumberDialog(&host(), slot, m_selectedDocCount, m_selectedDocHeadCount, host().getMainWindow()))
        .exec();
}

QString JS_Mediator_SaveFile::addNumber4GroupDir() {
    return call(*this, TracedQuery, __func__, {}, [this] { return numberPreview(groupSlot(m_kind)); });
}

QString JS_Mediator_SaveFile::addNumber4SubDir() {
    return call(*this, TracedQuery, __func__, {}, [this] { return numberPreview(subDirSlot(fileType(m_kind))); });
}

QString JS_Mediator_SaveFile::addNumber4FileName() {
    return call(*this, TracedQuery, __func__, {}, [this] { return numberPreview(fileNameSlot(fileType(m_kind))); });
}

QString JS_Mediator_SaveFile::numberPreview(int slot) const {
    const NumberDigits digits = slotDigits([this](const QString& key) { return host().getPref(key); }, slot);
    const bool ofFiles = m_kind == JobKind::Convert || host().isFileMode();
    return numberText(1, 1, 1, ofFiles ? 0 : digits.camera, ofFiles ? 0 : digits.head, digits.session);
}

QStringList JS_Mediator_SaveFile::getFileFormats(bool fromDevice) {
    return call(*this, TracedQuery, __func__, {{"fromDevice", fromDevice}}, [&] {
        const QStringList ofCamera = fromDevice ? QStringList{QStringLiteral("GRAW")} : QStringList();
        return PictureFormats + RawFormats + ofCamera + VideoFormats;
    });
}

QStringList JS_Mediator_SaveFile::getSnapFileFormats() {
    return call(*this, TracedQuery, __func__, {}, [] { return PictureFormats + VideoFormats; });
}

QStringList JS_Mediator_SaveFile::getLayoutFileFormats() {
    return call(*this, TracedQuery, __func__, {}, [] { return PictureFormats; });
}

QStringList JS_Mediator_SaveFile::getCodecFilters() {
    return call(*this, TracedQuery, __func__, {}, [] { return Codecs; });
}

QString JS_Mediator_SaveFile::getFreeSpace(const QString& path) {
    return call(*this, TracedQuery, __func__, {{"path", path}}, [&] {
        const int end = path.indexOf(QLatin1Char('/'));
        return sizeText(QStorageInfo(end == 0 ? nearestFolder(path) : path.left(end + 1)).bytesFree());
    });
}

bool JS_Mediator_SaveFile::isSnapMode() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_kind == JobKind::Snap; });
}

bool JS_Mediator_SaveFile::isConvertMode() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_kind == JobKind::Convert; });
}

bool JS_Mediator_SaveFile::isReportMode() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_kind == JobKind::Report; });
}

bool JS_Mediator_SaveFile::isLayoutMode() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_kind == JobKind::Layout; });
}

QString JS_Mediator_SaveFile::getParentWidgetName() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_parentWidgetName; });
}

QString JS_Mediator_SaveFile::addDateTime(const QString& format) {
    return call(*this, TracedQuery, __func__, {{"format", format}},
                [&] { return dateText(QDateTime::currentDateTime(), format); });
}

bool JS_Mediator_SaveFile::isMovieFormat(const QString& format) {
    return call(*this, TracedQuery, __func__, {{"format", format}}, [&] {
        static const QStringList movies = {QStringLiteral("avi"), QStringLiteral("mov"),  QStringLiteral("wmv"),
                                           QStringLiteral("mp4"), QStringLiteral("mraw"), QStringLiteral("graw")};
        return movies.contains(format, Qt::CaseInsensitive);
    });
}

bool JS_Mediator_SaveFile::isRawFormat(const QString& format) {
    return call(*this, TracedQuery, __func__, {{"format", format}}, [&] {
        if (m_kind != JobKind::Export && m_kind != JobKind::Convert) {
            return false;
        }
        const auto isChosen = [this](const char* key) {
            return host().getPrefBool(nameFamily(fileType(m_kind)) % QLatin1String(key));
        };
        const QString name = format.toLower();
        if (name == QLatin1String("tiff") || name == QLatin1String("tiff (multi-page)")) {
            return isChosen("tiff/bayersave");
        }
        return (name == QLatin1String("raww") && isChosen("raww/bayersave")) ||
               (name == QLatin1String("mraw") && isChosen("mraw/bayersave")) || name == QLatin1String("graw");
    });
}

void JS_Mediator_SaveFile::editCustom(bool forTemporary) {
    call(*this, Action, __func__, {{"forTemporary", forTemporary}},
         [&] { ModalRun(new GUI_CustomInfoDialog(&host(), forTemporary, host().getMainWindow())).exec(); });
}

QString JS_Mediator_SaveFile::getMultiPaths() {
    return call(*this, TracedQuery, __func__, {}, [this] { return multiPaths(host()); });
}

QString JS_Mediator_SaveFile::getMultiPathDevices() {
    return call(*this, TracedQuery, __func__, {}, [this] { return multiPathDevices(host()); });
}

bool JS_Mediator_SaveFile::isNeedRefreshPreview() {
    return call(*this, TracedQuery, __func__, {}, [this] {
        constexpr int Displays = 7;
        for (int i = 0; i < Displays; ++i) {
            const auto value = shownValue(host().getPrefString(QStringLiteral("saveinfo/display%1").arg(i)),
                                          QStringLiteral("File name"));
            if (value) {
                return *value == QLatin1String("1");
            }
        }
        return false;
    });
}

bool JS_Mediator_SaveFile::isTal2OptionDisabled() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_tal2.isTal2OptionDisabled(); });
}

bool JS_Mediator_SaveFile::isTAL2AppInstalled() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_tal2.isTAL2AppInstalled(); });
}
