#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/rtf/CharacterStyles.h"
#include "services/rtf/Document.h"
#include "services/rtf/Flow.h"
#include "services/rtf/InlineWriter.h"
#include "services/rtf/Notes.h"
#include "services/rtf/Pictures.h"
#include "services/rtf/Targets.h"
#include "services/rtf/WebPage.h"

namespace tagsmith::rtf {

/// Makes a web page of a document: HTML Standard (WHATWG), the page's looks as CSS in it. Time and
/// memory grow with what it is told in proportion.
class HtmlWriter final : public DocumentSink {
 public:
  explicit HtmlWriter(const PageOptions& options);
  HtmlWriter(const HtmlWriter&) = delete;
  HtmlWriter& operator=(const HtmlWriter&) = delete;

  void Begin() override {}
  void SetTitle(std::string_view title) override { title_ = title; }
  void AddFont(int number, std::string_view name, std::string_view family) override;
  void AddLink(int number, std::string_view target) override;
  void AddPicture(int number, Picture&& picture) override;
  void AddParagraph(const Paragraph& paragraph) override;
  void EndCell(int depth) override;
  void EndRow(int depth, const RowFormat& format) override;
  void BeginNote(int number) override;
  void EndNote() override;
  void End() override;

  /// The page, behind `End`.
  WebPage Take() { return std::move(page_); }

 private:
  Flow& Current() { return note_ ? *note_ : body_; }
  void AppendHead(std::string& html, std::string_view rules);
  std::string_view Title() const;

  PageOptions options_;
  std::string title_;
  CharacterStyles styles_;
  Targets targets_;
  Pictures pictures_;
  Notes notes_;
  InlineWriter inlines_;
  Flow body_;
  std::optional<Flow> note_;
  int noteNumber_ = kAbsent;
  WebPage page_;
};

}  // namespace tagsmith::rtf
