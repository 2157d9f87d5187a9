// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One page of Graph Setup without its window: what it checks, what it copies back to the
// current graph, and where Next and Prev lead.

namespace quindar {

class GraphData;
class SetupUi;
struct GraphSetupSession;

class SetupPageModel {
public:
    SetupPageModel(GraphSetupSession &session, SetupUi &ui) : session(session), ui(ui) {}
    virtual ~SetupPageModel() = default;
    SetupPageModel(const SetupPageModel &) = delete;
    SetupPageModel &operator=(const SetupPageModel &) = delete;

    // The page's index in the sheet (setup_pages.h).
    virtual int Index() const = 0;

    // The page comes to the front: stores its page id in the session and marks its
    // "...Visited" flag on the working copy.
    virtual void SetActive();
    // Copies the page's share of the working copy to the current graph when its flag is set.
    virtual void ApplyChanges() {}
    // The page's checks on `graph`; a failure has shown its message and selected the page.
    virtual bool CheckData(GraphData &graph);

    // Next: the page's check, then the page it leads to. Prev: the page before.
    virtual void Next();
    virtual void Prev();

protected:
    // The working copy's "...Visited" flag of this page; null for the Graphs page.
    bool *VisitedFlag();

    GraphSetupSession &session;
    SetupUi &ui;
};

}  // namespace quindar
