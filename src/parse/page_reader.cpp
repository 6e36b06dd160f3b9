#include "parse/page_reader.h"

#include "base/error.h"

namespace ordex {

PageLine PageReader::Next() {
  if (handedBack_) {
    const PageLine line = *handedBack_;
    handedBack_.reset();
    WorkOn(line);
    return line;
  }
  if (lines_.AtEnd()) {
    throw MakeError(ErrorNumber::kPastEndOfFile, "la pagina finisce dove si attendeva altro testo");
  }
  inWork_ = {lines_.Next(), ++count_};
  if (trace_ != nullptr) trace_->Read(inWork_);
  return inWork_;
}

}  // namespace ordex
