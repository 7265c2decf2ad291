#pragma once

#include "ui_RPFmtNodeWdg.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Orlimo {

class IOLFormatNode;
class IOLFormatPreset;

// The page of a category, or of the custom presets: the node's children on the left, the presets of
// the selected child on the right.
class RPFmtNodeWdg final : public QWidget
{
    Q_OBJECT

public:
    explicit RPFmtNodeWdg(QWidget *parent);
    ~RPFmtNodeWdg() override;

    // Shows a node, which may be empty, and drops any search. On a custom page the action icon of a
    // preset deletes it; on others it asks for the preset to be edited.
    void SetFormatNode(std::shared_ptr<IOLFormatNode> newNode, bool newCustom);

    // Shows what the data source finds for text; the whole node for an empty text.
    void SearchFormat(const QString &text);

    // Shows the whole node again; does nothing unless a search is shown.
    void ResetSearch();

    QListWidget *NodeList() const { return ui.ListNode; }
    QListWidget *FormatList() const { return ui.ListFormat; }

public Q_SLOTS:
    void SelectedNodeChanged();
    void ListFormatClicked(QListWidgetItem *item);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    using Selection = std::function<void(std::shared_ptr<const IOLFormatPreset>,
                                         std::shared_ptr<const IOLFormatNode>)>;
    using EditRequest =
            std::function<void(std::shared_ptr<IOLFormatPreset>, std::shared_ptr<IOLFormatNode>)>;

    std::shared_ptr<IOLFormatNode> ShownNode() const;
    void ShowFirstSubNode();
    void SelectSubNode(std::shared_ptr<IOLFormatNode> child);
    void FillNodeList(const std::shared_ptr<IOLFormatNode> &shown);
    void FillFormatList();
    int FormatTextWidth() const;
    void DeleteCustomPreset(const std::shared_ptr<IOLFormatPreset> &preset,
                            const std::shared_ptr<IOLFormatNode> &subNode, bool *emptied);
    void DeleteClicked(QListWidgetItem *item, const std::shared_ptr<IOLFormatPreset> &preset);
    void Forget(QListWidgetItem *taken);
    void RemoveCurrentSubNodeRow();

    Ui::RPFmtNodeWdgClass ui;
    std::shared_ptr<IOLFormatNode> node;
    std::shared_ptr<IOLFormatNode> searchNode; // shown instead of node where it is set

public:
    Selection formatSelected;          // called when a preset is chosen
    EditRequest formatEditRequested;   // called for the action icon of a page that is not custom
    EditRequest formatActionRequested; // for the owner; never called here

private:
    std::shared_ptr<IOLFormatNode> currentSubNode;
    std::shared_ptr<IOLFormatPreset> currentPreset;
    bool custom = false;
    bool formatsFilled = false; // since the node was last shown
};

} // namespace Orlimo
