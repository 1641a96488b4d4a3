// Whether the program is like the model of it.
#pragma once

#include "document/session.h"
#include "reliability/model.h"

#include <string>

namespace pixano::test {

/// In what the program differs from the model; empty when in nothing.
std::string Difference(Session& session, const Model& model);

}  // namespace pixano::test
