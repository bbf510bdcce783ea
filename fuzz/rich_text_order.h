#pragma once

#include <string>

#include "text/rich_text.h"

namespace quintara {

// What doesn't hold of a run, of those that hold of every document, however bad its source; empty where all
// do.
inline std::string FaultOf(const RichTextRun& run, const RichText& document) {
  if (run.text.empty()) return "a run without text";
  if (run.look.font >= document.fonts.size()) return "a font that the document doesn't have";
  if (run.look.halfPoints < 2 || run.look.halfPoints > richTextMaxHalfPoints) return "a size out of range";
  if (run.look.colour.value_or(0) > 0xFFFFFF) return "a colour out of range";
  return {};
}

inline std::string FaultOf(const RichTextFormat& format) {
  for (const int indent : {format.leftIndent, format.rightIndent, format.firstLineIndent}) {
    if (indent < -richTextMaxTwips || indent > richTextMaxTwips) return "an indent out of range";
  }
  for (const int space : {format.spaceBefore, format.spaceAfter}) {
    if (space < 0 || space > richTextMaxTwips) return "a space out of range";
  }
  if (format.tabs.size() > richTextMaxTabs) return "too many tabs";
  int last = 0;
  for (const RichTextTab& tab : format.tabs) {
    if (tab.position <= last || tab.position > richTextMaxTwips) return "a tab out of range or order";
    last = tab.position;
  }
  return {};
}

// What doesn't hold of a document that the reader made; empty where all does.
inline std::string FaultOf(const RichText& document) {
  if (document.paragraphs.size() > richTextMaxParagraphs) return "too many paragraphs";
  if (document.fonts.empty() || document.fonts.size() > richTextMaxFonts + 1) return "none or too many fonts";
  if (document.defaultTabs < 1 || document.defaultTabs > richTextMaxTwips) return "default tabs out of range";
  for (const RichTextParagraph& paragraph : document.paragraphs) {
    const RichTextLook* previous = nullptr;
    for (const RichTextRun& run : paragraph.runs) {
      if (const std::string fault = FaultOf(run, document); !fault.empty()) return fault;
      if (previous != nullptr && *previous == run.look) return "neighbouring runs of one look";
      previous = &run.look;
    }
    if (const std::string fault = FaultOf(paragraph.format); !fault.empty()) return fault;
  }
  return {};
}

}  // namespace quintara
