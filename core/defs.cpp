#include "core/defs.h"

#include "core/document.h"
#include "core/morlan.h"

namespace morlan {

Program::Program(Platform platform, FrontEnd& frontEnd)
    : platform(platform),
      frontEnd(frontEnd),
      forms(*this),
      MainIni(platform.files),
      ProjectIni(platform.files),
      morlan_(std::make_unique<Morlan>(*this)) {}

Program::~Program() {
  documents.clear();
  closedDocuments.clear();
}

}  // namespace morlan
