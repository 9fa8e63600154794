// The dialog "Anlagenexport": reads the configuration file export.cfg of a folder, which names client and business
// years, and writes the assets of each year into the year's directory beside that file.
#pragma once

namespace merla {

constexpr char kAssetTitle[] = "Anlagenexport";

constexpr int kIdAssetFrame = 50;
constexpr int kIdAssetFolder = 51;
constexpr int kIdAssetStart = 1011;
constexpr int kIdAssetClose = 1012;
constexpr int kIdAssetState = 1013;

// Opens the dialog and brings it to the front.
void OpenAssetDialog();

}  // namespace merla
