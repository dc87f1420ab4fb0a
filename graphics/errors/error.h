#pragma once
// A failure found inside the engine. Engine code never reports by itself: it
// hands an Error back to the exported function, which reports it after the
// database lock is released, because error handlers may call back into the
// engine.
#include <string>
#include <utility>
#include <variant>

#include "errors/report.h"

namespace graphics {

// One row of the engine's error table: the category and the specific number
// of a situation. Specific numbers are the category times 100 plus a row
// index, so they are distinct and never collide with the pairs the host drops.
struct ErrorCode {
  int category;
  int specific;
};

namespace errc {
inline constexpr ErrorCode kOutOfMemory{kCategoryMemory, 301};
inline constexpr ErrorCode kInvalidKey{kCategoryKey, 2001};
inline constexpr ErrorCode kWrongKeyKind{kCategoryKey, 2002};
inline constexpr ErrorCode kNothingOpen{kCategoryOpen, 2101};
inline constexpr ErrorCode kItemOpen{kCategoryOpen, 2102};
inline constexpr ErrorCode kBadName{kCategoryName, 2201};
inline constexpr ErrorCode kNoSuchSegment{kCategoryName, 2202};
inline constexpr ErrorCode kRelativeWithNothingOpen{kCategoryName, 2203};
inline constexpr ErrorCode kWildcardNotAllowed{kCategoryName, 2204};
inline constexpr ErrorCode kRootNotDeletable{kCategoryName, 2205};
inline constexpr ErrorCode kUnknownOption{kCategoryOption, 2301};
inline constexpr ErrorCode kBadOptionSyntax{kCategoryOption, 2302};
inline constexpr ErrorCode kNotSet{kCategoryOption, 2303};
inline constexpr ErrorCode kOutOfRange{kCategoryRange, 2401};
inline constexpr ErrorCode kNullArgument{kCategoryRange, 2402};
inline constexpr ErrorCode kDegenerate{kCategoryGeometry, 2501};
inline constexpr ErrorCode kNoSearch{kCategorySearch, 2601};
inline constexpr ErrorCode kDestinationNotEmpty{kCategoryName, 2206};
inline constexpr ErrorCode kNameTaken{kCategoryName, 2207};
}  // namespace errc

class Error {
 public:
  Error(ErrorCode code, std::string message, int severity = kError)
      : code_(code), message_(std::move(message)), severity_(severity) {}

  int category() const { return code_.category; }
  int specific() const { return code_.specific; }
  int severity() const { return severity_; }
  const std::string& message() const { return message_; }

 private:
  ErrorCode code_;
  std::string message_;
  int severity_;
};

// A value or the Error that prevented it.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : state_(std::in_place_index<0>, std::move(value)) {}
  Result(Error error) : state_(std::in_place_index<1>, std::move(error)) {}

  bool ok() const { return state_.index() == 0; }
  const T& value() const { return std::get<0>(state_); }
  T& value() { return std::get<0>(state_); }
  const Error& error() const { return std::get<1>(state_); }

 private:
  std::variant<T, Error> state_;
};

// The value of an operation that succeeds with nothing to give back.
struct Done {};
using Status = Result<Done>;

}  // namespace graphics
