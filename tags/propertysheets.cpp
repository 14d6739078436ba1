#include "tags/propertysheets.h"

#include <algorithm>

#include "core/defs.h"
#include "core/document.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kFileName = "Morlan7.tpf", kNoColour = "0";

bool IsBuiltInParam(const std::vector<ParamRecord>& params, std::string_view name) {
  return std::any_of(params.begin(), params.end(),
                     [&](const ParamRecord& param) { return param.builtIn && EqualNoCase(param.name, Trim(name)); });
}

}  // namespace

const std::string_view kSheetsNotWritten = "Nie można zapisać opisu znaczników"_pl;

std::string PropertySheets::Path() const { return Concat({program_.ProgramPath, kFileName}); }

const PropertyFile& PropertySheets::File() {
  Files& files = program_.platform.files;
  const std::uint64_t length = files.Size(Path()).value_or(0);
  if (readLength_ == length) return file_;
  file_ = PropertyFile(files.Read(Path()).value_or(""));
  readLength_ = length;
  return file_;
}

void PropertySheets::ReadIfChanged() {
  const auto present = program_.platform.files.Map(Path());
  if (!present || present->Bytes() != file_.Bytes()) ReadAnew();
}

bool PropertySheets::Change(const std::function<bool(PropertyFile& file)>& change) {
  ReadAnew();
  PropertyFile changed = File();
  if (!change(changed)) return false;
  if (!program_.platform.files.Write(Path(), changed.Bytes())) return false;
  readLength_ = changed.Bytes().size();
  file_ = std::move(changed);
  ForgetHints();
  return true;
}

void PropertySheets::ForgetHints() {
  for (const auto& document : program_.documents) {
    document->FastHelpC.Tag.clear();
    document->FastHelpL.Tag.clear();
  }
}

PropertySheets& SheetsOf(Program& program) {
  auto& sheets = program.tagState.propertySheets;
  if (!sheets) sheets = std::make_shared<PropertySheets>(program);
  return *sheets;
}

std::uint32_t FindTagRecord(Program& program, std::string_view name) { return SheetsOf(program).File().FindTag(name); }

std::optional<std::vector<ParamRecord>> ParamsOfTag(Program& program, std::string_view name) {
  const PropertyFile& file = SheetsOf(program).File();
  return file.Params(file.FindTag(name));
}

bool HasPropertySheet(Program& program, std::string_view name) { return ParamsOfTag(program, name).has_value(); }

bool AddTagRecord(Program& program, const TagRecord& record) {
  return SheetsOf(program).Change([&](PropertyFile& file) { return file.AddTag(record) != 0; });
}

bool RemoveTagRecord(Program& program, std::string_view name) {
  PropertySheets& sheets = SheetsOf(program);
  if (sheets.File().IsBuiltIn(FindTagRecord(program, name))) {
    ShowError(program, "Ten znacznik nie może zostać usunięty"_pl);
    return false;
  }
  return sheets.Change([&](PropertyFile& file) { return file.RemoveTag(file.FindTag(name)); });
}

bool RemoveParamRecord(Program& program, std::string_view tag, std::string_view name) {
  const auto params = ParamsOfTag(program, tag);
  if (params && IsBuiltInParam(*params, name)) {
    ShowError(program, "Ten parametr nie może zostać usunięty"_pl);
    return false;
  }
  return SheetsOf(program).Change([&](PropertyFile& file) { return file.RemoveParam(file.FindTag(tag), name); });
}

std::string_view DefaultOf(const ParamRecord& param) {
  const bool isNoColour = param.kind == ParamKind::Colour && param.defaultValue == kNoColour;
  return isNoColour ? std::string_view() : param.defaultValue;
}

}  // namespace morlan
