#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fake_calc_tol_dlg.h"
#include "host/main_frame.h"
#include "tests/support/message_pump.h"

/// A main window that shows three dimensions: A1 (increasing, 40 h8), A2 (decreasing, 25 +0.2/-0.1), X (15 without a
/// field); and N, which has no nominal size. All lie one above the other, 10 millimetres apart.
class HostTest : public testing::Test
{
protected:
    HostTest();
    ~HostTest() override;

    void SetUp() override;

    const DrawingObject& Object(const std::string& name) const;
    void* Address(const std::string& name) const { return const_cast<DrawingObject*>(&Object(name)); }

    FakeCalcTolDlg& Open();
    FakeCalcTolDlg& Dialog() const { return *FakeCalcTolDlg::Living(); }
    void Notify(HostNotification code) const { Dialog().Notify(code); }
    /// A round that has begun: the notification, and what the host does when the dialog's message loop runs.
    void Begin(HostNotification code) const;
    /// Adds a dimension as the user does.
    void AddLink(const std::string& name);
    void AddClosing(const std::string& name);
    /// Begins to edit a row whose values are those of the record.
    void BeginEdit(CDimParams& record, const CDimParams& values) const;
    /// Begins the distribution of a link, with the main window disabled as that dialog leaves it.
    void BeginDistribution(HostNotification code, const CVariableParams& values) const;

    ChainProtocol& Protocol() const { return m_frame->Protocol(); }
    std::vector<std::string> Lines() const { return Protocol().ChainLines(); }

    CMainFrame* m_frame = nullptr;  // deletes itself with its window
};

using Calls = std::vector<std::string>;
