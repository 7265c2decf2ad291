#pragma once

#include <QIcon>
#include <QWidget>

#include <functional>
#include <memory>

namespace Orlimo {

class IOLFmtPresetRecentItem;
class IOLFormatNode;
class IOLFormatPreset;

// One row of the picker's lists: a format node, a preset or a recent choice, with the action icon
// of the row while the mouse is over it. The list that owns the row sets one of the three data
// members and handles the clicks.
class RPFmtItemDataWdg final : public QWidget
{
    Q_OBJECT

public:
    explicit RPFmtItemDataWdg(QWidget *parent);

    // The box of the action icon on the screen, whether the icon is visible or not.
    QRect GetActionGlobalRect() const;

    // The two texts of the row, translated; empty where the row has none.
    QString Title() const;
    QString Description() const;

    std::shared_ptr<IOLFmtPresetRecentItem> recentItem;
    QWidget *actionWidget = nullptr; // not owned; kept on the action box
    std::shared_ptr<const IOLFormatNode> node;
    std::shared_ptr<const IOLFormatPreset> preset;
    std::function<void()> clickHandler; // for the owner; never called here
    bool hovered = false;
    QIcon actionIcon;
    int textWidth = 0; // where a preset row's description begins; 0 or less for automatic

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void PaintNode(QPainter &painter) const;
    void PaintPreset(QPainter &painter) const;
    void PaintRecent(QPainter &painter) const;
    void PaintIcon(QPainter &painter, int faceID) const;
    void PaintDescription(QPainter &painter, int left) const;
    void PaintAction(QPainter &painter) const;
    QRect MeasuredTitleBox(QPainter &painter, const QString &title) const;
};

} // namespace Orlimo
