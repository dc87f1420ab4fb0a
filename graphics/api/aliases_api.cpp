// Aliases, and paths written out in full.
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "database/segment_path.h"
#include "hc/hc.h"
#include "search/segment_spec.h"
#include "strings/text.h"

using graphics::Database;
using graphics::Done;
using graphics::Error;
using graphics::PathComponent;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::WriteString;

namespace {

// `path` (alias-free) made absolute from `current` and tidied: "." gone,
// ".." taken back, names in display form; wildcards and other pieces kept.
Result<std::string> Absolute(std::string_view path, const graphics::Segment* current) {
  std::string_view rest = graphics::TrimBlanks(path);
  std::vector<std::string> parts;
  if (!rest.empty() && rest.front() == '/') {
    rest = graphics::TrimBlanks(rest.substr(1));
  } else if (current == nullptr) {
    return Error(graphics::errc::kRelativeWithNothingOpen, "relative path '" + std::string(path) + "' with no segment open");
  } else {
    const std::string base = Database::FullPath(*current);
    for (std::string_view piece : graphics::SplitComponents(std::string_view(base).substr(1))) {
      if (!piece.empty()) parts.emplace_back(piece);
    }
  }
  if (!rest.empty()) {
    for (std::string_view raw : graphics::SplitComponents(rest)) {
      auto component = graphics::ParseComponent(path, raw);
      if (!component.ok()) {
        parts.push_back(graphics::ToLowerAscii(graphics::TrimBlanks(raw)));  // wildcards, "..."
        continue;
      }
      switch (component.value().kind) {
        case PathComponent::Kind::kSelf:
          break;
        case PathComponent::Kind::kOwner:
          if (!parts.empty()) parts.pop_back();
          break;
        case PathComponent::Kind::kKey:
          parts.push_back(graphics::KeyReference(component.value().key));
          break;
        case PathComponent::Kind::kName:
          parts.push_back(graphics::DisplayName(component.value().name));
          break;
      }
    }
  }
  std::string absolute;
  for (const std::string& part : parts) absolute += "/" + part;
  return absolute.empty() ? "/" : absolute;
}

}  // namespace

extern "C" void HC_Define_Alias(char const* name, char const* expansion) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = Require(name, "alias name");
    if (!required.ok()) return required;
    auto required_expansion = Require(expansion, "expansion");
    if (!required_expansion.ok()) return required_expansion;
    return session.database().mutable_aliases().Define(name, expansion);
  });
}

extern "C" void HC_UnDefine_Alias(char const* name) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = Require(name, "alias name");
    if (!required.ok()) return required;
    return session.database().mutable_aliases().UnDefine(name);
  });
}

// An unknown alias reports and writes "".
extern "C" void HC_Show_Alias(char const* alias, char* expansion) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    WriteString(expansion, "");
    auto required = Require(alias, "alias name");
    if (!required.ok()) return required;
    auto shown = session.database().aliases().Show(alias);
    if (!shown) return Error(graphics::errc::kBadName, "unknown alias '" + std::string(alias) + "'");
    WriteString(expansion, *shown);
    return Done{};
  });
}

// The target need not exist; wildcards and lists are kept as written.
extern "C" void HC_Show_Pathname_Expansion(char const* pathname, char* expansion) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    WriteString(expansion, "");
    auto required = Require(pathname, "path");
    if (!required.ok()) return required;
    std::string written;
    for (std::string_view path : graphics::SplitTopLevel(pathname, ',')) {
      auto expanded = session.database().aliases().Expand(path);
      if (!expanded.ok()) return expanded.error();
      auto absolute = Absolute(expanded.value(), session.current());
      if (!absolute.ok()) return absolute.error();
      written += (written.empty() ? "" : ",") + absolute.value();
    }
    WriteString(expansion, written);
    return Done{};
  });
}
