#pragma once

#include "front/zoom.h"
#include "text/rich_text.h"

class QTextDocument;

namespace quintara::desktop {

// Fills a document of Qt's with the paragraphs of one of ours. Both have the same plain text.
void FillDocument(QTextDocument& document, const RichText& text, const Zoom& zoom);

}  // namespace quintara::desktop
