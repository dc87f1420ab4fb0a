#pragma once
// The calls every option-list attribute offers (set, show, show one, unset,
// unset one, and the net forms), written once for all families.
#include "attributes/attribute_kind.h"

namespace graphics::api {

// Merges `list` into the current segment's options; a bad list changes
// nothing and is reported. Under a dead frame nothing happens.
void SetOptions(const char* routine, AttributeKind kind, const char* list);
// The canonical local list; none set is reported and `list` left alone.
void ShowOptions(const char* routine, AttributeKind kind, char* list);
// One local option without "name="; "" when not set, silently.
void ShowOneOption(const char* routine, AttributeKind kind, const char* name, char* value);
// Removes all local options; nothing set is not an error.
void UnSetOptions(const char* routine, AttributeKind kind);
// Removes one option (all members of a group word); not set is no error.
void UnSetOneOption(const char* routine, AttributeKind kind, const char* name);
// Every option's net value along the key path, defaults included.
void ShowNetOptions(const char* routine, AttributeKind kind, int count, const long long* keys, char* list);
// One option's net value; true when a segment on the path set it.
bool ShowOneNetOption(const char* routine, AttributeKind kind, int count, const long long* keys, const char* name,
                      char* value);

}  // namespace graphics::api
