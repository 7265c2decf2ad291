#pragma once

#include "PopupDriver.h"
#include "PresetsModel.h"
#include "SampleDescription.h"

#include <QStringList>
#include <QWidget>

#include <array>
#include <set>

namespace Test {

// A host with two windows that opens the popup and counts what it reports, and what must be so
// whatever the user does.
class PopupScene
{
public:
    // What a callback was given; empty texts for empty pointers.
    struct Report
    {
        int opening;
        std::string preset;
        std::string node;
        std::shared_ptr<const Orlimo::IOLFormatPreset> choice;
    };

    explicit PopupScene(Random &random);

    void Open();
    bool IsOpen() const { return !m_due.empty(); }
    int Opening() const { return m_opening; } // the number of the last one

    // While this is off, no callback opens the popup again.
    void LetCallbacksReopen(bool allowed) { m_callbacksReopen = allowed; }

    // Starts a load and waits for its end. The popup has yet to handle what it posts.
    void Load(bool failing);

    PopupDriver Driver() const { return PopupDriver(PopupDriver::FindPopup()); }
    void ActivateHost(int window);

    const QList<Report> &Reports() const { return m_reports; }
    void ForgetReports() { m_reports.clear(); }

    // What the user sees on the current page, from what the data source is to hold.
    PlainNode ShownTree() const;
    std::vector<PresetsModel::Choice> ShownChoices() const;
    bool IsRecentPage() const;
    bool IsCustomPage() const;
    bool IsSearching() const;

    PresetsModel &Model() { return m_model; }
    void Do(PresetsOperation::Kind kind, const PlainNode &format, const PlainPreset &preset);

    // The deletion of one of two custom presets with the same name takes its row away but the first
    // of them from the data, so that their order can differ from then on.
    void LoosenCustomOrder() { m_customOrderIsLoose = true; }

    void CheckAll();
    void Verify(bool condition, const QString &what);
    const QString &Fault() const { return m_fault; }

private:
    void Receive(int opening, const std::shared_ptr<const Orlimo::IOLFormatPreset> &preset,
                 const std::shared_ptr<const Orlimo::IOLFormatNode> &node);
    void CheckWindows();
    void CheckTabs();
    void CheckRecentPage();
    void CheckNodePage();
    void CheckDataSource();
    void CheckRows(const char *list, QStringList expected);

    Random &m_random;
    SampleDescription m_description;
    std::array<QWidget, 2> m_hosts;
    PresetsModel m_model;
    QList<Report> m_reports;
    std::set<int> m_due; // the openings whose callback is still to be called
    int m_opening = 0;
    [[maybe_unused]] int m_settledOpening = 0;
    bool m_callbacksReopen = true;
    bool m_loaded = false;
    bool m_customOrderIsLoose = false;
    QString m_fault;
};

} // namespace Test
