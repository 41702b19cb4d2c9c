#pragma once

#include "JS_Mediator_FileDialog.h"

/// What the page can ask and do that says how images are converted once they are saved. GUI thread.
class JS_Mediator_ConvertParameterEditDialog : public JS_Mediator_FileDialog {
    Q_OBJECT

public:
    /// `keys`: cameras whose images are converted. Names are shown of the first.
    JS_Mediator_ConvertParameterEditDialog(ZebHost* host, const DocKeyList& keys, QObject* parent = nullptr);

    /// Of these cameras alone.
    QString list(bool temporary) override;

private:
    const DocKeyList m_keys;
};
