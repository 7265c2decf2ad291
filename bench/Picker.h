#pragma once

#include "BarePicker.h"

#include <QString>

#include <memory>

namespace Bench {

void Show(QWidget &window);

// The rows of each category of the loaded tree.
QList<PageRows> CategoryRows();

// What is measured in a scene: a window in the picker's form, of the loaded tree.
class Picker
{
public:
    // "popup" for ours, or "bare" for a BarePicker.
    static std::unique_ptr<Picker> Of(const QString &kind);

    virtual ~Picker() = default;

    // Makes the window where there is none yet.
    virtual void Show() = 0;
    virtual QWidget *Window() const = 0;

    // Called before each search for the key in the first category.
    virtual void ExpectSearch(const QString &key) = 0;

    QTabWidget *Tabs() const;
    QLineEdit *SearchBox() const;
};

} // namespace Bench
