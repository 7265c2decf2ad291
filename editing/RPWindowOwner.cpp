#include "RPWindowOwner.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace Orlimo {

namespace {

QPointer<QWindow> lastActive; // when the popup opened
QPointer<QWindow> popup;

QWindow *HandleOf(const QWidget *widget)
{
    return widget ? widget->window()->windowHandle() : nullptr;
}

bool BelongsTo(const QWindow *window, const QWindow *owner)
{
    while (window && window != owner)
        window = window->transientParent();
    return window == owner;
}

// Only a native window can have an owner, so it is made first. Windows must not own each other.
void SetOwner(QWidget &window, QWindow *owner)
{
    window.winId();
    QWindow *handle = window.windowHandle();
    const bool usable = owner && owner->isVisible() && !BelongsTo(owner, handle);
    handle->setTransientParent(usable ? owner : nullptr);
}

} // namespace

void PlaceAboveModalWindow(QWidget &window)
{
    if (QWindow *active = HandleOf(QApplication::activeWindow()))
        lastActive = active;
    SetOwner(window, HandleOf(QApplication::activeModalWidget()));
    popup = window.windowHandle();
}

// The popup closes when the dialog takes the focus, so it is no owner.
void PlaceAboveActiveWindow(QWidget &window)
{
    QWindow *owner = HandleOf(QApplication::activeModalWidget());
    if (!owner)
        owner = HandleOf(QApplication::activeWindow());
    SetOwner(window, owner && owner != popup ? owner : lastActive.data());
}

} // namespace Orlimo
