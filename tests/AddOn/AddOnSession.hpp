#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Support/Places.hpp"
#include "Workbench/Interface/DialogState.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Tests {

/// A session of the embedded host with a temporary folder of its own; the add-on is unloaded at its
/// end.
class AddOnSession : public ::testing::Test {
protected:
    AddOnSession();
    ~AddOnSession() override;

    /// Begins the session anew, in the host's dark interface if so told.
    void Open(bool darkMode);

    const std::filesystem::path& Folder() const { return folder.Path(); }

private:
    TemporaryFolder folder;
};

/// Prepares answers to the dialogs that open next: the text of an answer script.
void PrepareAnswers(std::string_view script);

/// Prepares the answer to one dialog: what stands between the brackets of "itens", and the item
/// number of the button that is pressed.
void PrepareAnswer(std::int16_t dialog, std::string_view items, std::int16_t button);

/// Fails the running test where an answer was not carried out.
void ExpectAnswered();

/// The dialog that closed last, and how.
const Workbench::Dialog& LastDialog();
bool LastAccepted();

/// An item of it.
const Workbench::DialogItem& LastItem(std::int16_t item);

/// Numbers of its items, of those in `items`, that are visible and enabled.
std::vector<std::int16_t> UsableItems(const std::vector<std::int16_t>& items);

/// What stands in the report window, an alert with "!" in front.
std::vector<std::string> ReportWindow();

} // namespace Merivane::Tests
