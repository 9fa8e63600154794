#include "engine/built_in_variables.h"

#include "automation/text_verbs.h"
#include "clients/asset_matrix.h"
#include "clients/client_list.h"
#include "clients/merla_matrix.h"
#include "clients/state.h"
#include "engine/state.h"
#include "environment/discovery.h"
#include "environment/export_paths.h"
#include "environment/settings.h"
#include "environment/temp_path.h"
#include "platform/system.h"
#include "runtime/conversions.h"
#include "runtime/dates.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

constexpr BuiltInVariable kVariables[] = {
    {"$PATH", [] { return GetExportPath(""); }},
    {"$GDPDUPATH", [] { return GetExportPath("GDPDU"); }},
    {"$FIBUPATH", [] { return GetExportPath("FIBU"); }},
    {"$CTLPATH", GetCtlPath},
    {"$FIBUMANDANTPATH", [] { return GetMandantPath("FIBU"); }},
    {"$MANDANTPATH", [] { return GetMandantPath(""); }},
    {"$ANLPATH", [] { return GetExportPath("ANL"); }},
    {"$WJ", AssessmentYear},
    {"$TERUPATH", GetTeRuExternPath},
    {"$MANDANTNAME", GetMandantName},
    {"$MANDANTNUMMER", GetMandantNummer},
    {"$NOW", [] { return runtime::DateText(platform::Now()); }},
    {"$DATE", [] { return runtime::DayText(platform::Now()); }},
    {"$TEMP", GetTemp},
    {"$MATRIXJAHR", [] { return GetMatrixValue("JAHR"); }},
    {"$MATRIXBEREICH", [] { return GetMatrixValue("BEREICH"); }},
    {"$MERMATRIXJAHRBIS", GetMerMatrixJahrBis},
    {"$MERMATRIXPATH", GetMerMatrixPath},
    {"$MERLAMAXYEAR", [] { return clients.MerlaMaxYear; }},
};

}  // namespace

std::span<const BuiltInVariable> BuiltInVariables() { return kVariables; }

std::string AssessmentYear() {
  const std::string list = basAPI::ReadIniString(basAPI::SettingsFile(), "Einkommensteuer", "Veranlagungsjahr", "");
  std::string year;
  if (!list.empty()) {
    const auto years = runtime::Split(list, ',');
    runtime::Skip([&] { run.YearUpper = runtime::ToInteger(static_cast<double>(years.size()) - 1); });
    runtime::Skip([&] { year = runtime::Element(years, static_cast<std::size_t>(run.YearIndex)); });
  }
  return runtime::IsNumeric(year) ? year : std::to_string(platform::Now().year);
}

}  // namespace basMain
