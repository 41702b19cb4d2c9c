#pragma once

#include "JS_Mediator_Dialog.h"
#include "ZebTypes.h"

#include <QMap>
#include <QVariantMap>

#include <optional>

/// What the page of custom information can ask and do. `targets` are keys of cameras; one that is gone is skipped. An
/// item of a page is a map of `name`, `value`, `unit` and flags. GUI thread.
class JS_Mediator_CustomInfoDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// Keeps what the cameras have for `cancel`. One that does not tell is left as it is then.
    JS_Mediator_CustomInfoDialog(ZebHost* host, bool forTemporary, QObject* parent = nullptr);

public Q_SLOTS:
    /// JSON with `Records`, one for each camera, and `InitSelect`, that of the present camera, if it is among them.
    QString getDeviceInfo();
    /// JSON array of the items of a camera.
    QString getCustomInfo(DOCKEY dockey);
    void addCustomData(const QVariantList& targets, const QVariantMap& custom);
    void deleteCustomData(const QVariantList& targets, const QVariantList& customs);
    /// `custom` tells also the name that the item had, `oldname`; its flags are the text "on".
    void editCustomData(const QVariantList& targets, const QVariantMap& custom);
    /// Shows the items of these names, or not, as each says by `selected`.
    void enableCustomData(const QVariantList& targets, const QVariantList& customs);
    /// Replaces the lists. An item "Comments" becomes the camera's comment.
    void restoreCustomData(const QVariantList& targets, const QVariantList& customs);
    /// The same with the items of a file that the user chooses.
    void load(const QVariantList& targets);
    /// Into a file that the user chooses.
    void save(const QVariantList& customs);
    /// Puts back what the cameras had, each once.
    void cancel();
    /// Numbers of the records that are chosen.
    void setSelectedDeviceItems(const QVariantList& ids);
    /// Number of the record that is chosen alone; 0 when none is.
    int getCurrentDeviceRecord() { return m_currentRecord; }
    int getCallbackType() { return 17; }

private:
    /// Nothing where the camera did not tell.
    struct Kept {
        std::optional<QList<QVariantMap>> items;
        std::optional<QString> comment;
    };

    DocKeyList keys() const;
    void keep(DOCKEY key);
    /// Runs `work` for the documents of `targets` up to one that fails; the host shows the lists anew either way.
    template <typename Work>
    void changeEach(const QVariantList& targets, Work work);
    /// The same as the call of a page.
    template <typename Work>
    void change(const char* method, const QVariantList& targets, Work work);
    void restore(DOC_Interface& doc, const QVariantList& customs);
    void putBack(DOC_Interface& doc, const Kept& kept);

    const bool m_forTemporary;
    QMap<DOCKEY, Kept> m_kept;
    int m_currentRecord = 0;
};
