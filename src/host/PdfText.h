#pragma once

#include <string>

namespace ostrel {

/// A document in HTML as the octets of a PDF file of A4 pages with page numbers; empty when it
/// cannot be made. It needs an application object that can draw texts.
std::string PdfOf(const std::string& html);

}  // namespace ostrel
