#pragma once

#include "GUI_ModelessPatternDialog.h"
#include "TableView.h"

#include <memory>

class GUI_SelectBox;
class JS_Mediator_WrenTableDialog;

/// The window of the camera table. It opens where it was closed. GUI thread.
class GUI_WrenTableDialog : public GUI_ModelessPatternDialog, public TableView {
    Q_OBJECT

public:
    /// `bridge` is owned from here on.
    GUI_WrenTableDialog(ZebHost* host, const QString& title, const QString& url, JS_Mediator_WrenTableDialog* bridge,
                        PLG_Interface* plugin);
    ~GUI_WrenTableDialog() override;

    void showPartitionBox(const QRect& anchor) override;
    void hidePartitionBox() override;
    bool isPartitionBoxShown() const override;
    QWidget& widget() override { return *this; }

    /// Sends the number that the user is typing, who may type on; nothing when he is not. It may end in a question.
    void finishTyping();

    /// The session is open afterwards, page or not.
    void openPage() override;
    /// A failure of the page goes to the log and no further.
    void updatePage() override;

protected:
    /// The session is over afterwards, page or not.
    void closePage() override;
    /// Asks the user, unless the host itself is closing.
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void restorePlacement();
    void storePlacement();
    bool mayClose();
    void takePartitionBoxAlong();
    /// Made when it is first needed, or soon after the page stands.
    GUI_SelectBox& selectBox();
    void prepareSelectBox();

    /// The bridge, which the base class owns.
    JS_Mediator_WrenTableDialog* const m_table;
    std::unique_ptr<GUI_SelectBox> m_selectBox;
};
