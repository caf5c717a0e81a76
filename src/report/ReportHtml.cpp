#include "report/ReportText.h"

#include <cstdint>
#include <optional>

namespace hooptab {

namespace {

constexpr std::string_view kStyle =
    "body{font:14px/1.4 'DejaVu Sans','Segoe UI',sans-serif;color:#111;background:#fff;margin:2em}"
    "h1{font-size:1.5em;margin:0}h2{font-size:1.1em;margin:1.4em 0 .3em}p{margin:.4em 0;white-space:pre-line}"
    "table{border-collapse:collapse;font-size:.85em;font-variant-numeric:tabular-nums}"
    "th,td{padding:.15em .5em;text-align:right;border-bottom:1px solid #ddd;white-space:nowrap}"
    "th{border-bottom:2px solid #444}th.group{text-align:center;border-bottom:1px solid #999}"
    ".left{text-align:left}tr:nth-child(even) td{background:#f5f5f5}"
    "tr.total td{font-weight:bold;border-top:2px solid #444}tr.section td{border-top:2px solid #444}"
    "tr.highlighted td{font-weight:bold;background:#e4e4e4}tr.pale td{color:#666}"
    "table.tiles{font-size:1em}table.tiles td{font-size:1.6em;font-weight:bold}"
    "table.tiles th,table.tiles td{text-align:center}"
    "h2 small{font-weight:normal}p.sentence{background:#f5f5f5;border-left:.3em solid #444;padding:.3em .6em}"
    "div.ruled{height:2em;border-bottom:1px solid #999}"
    "div.table{overflow-x:auto}figure{display:inline-block;margin:1em 2em 0 0;vertical-align:top}"
    "figcaption{white-space:pre-line;font-size:.85em}img{max-width:100%}";

std::string escaped(std::string_view text) {
  std::string result;
  for (const char letter : text) {
    switch (letter) {
    case '&': result += "&amp;"; break;
    case '<': result += "&lt;"; break;
    case '>': result += "&gt;"; break;
    case '"': result += "&quot;"; break;
    case '\'': result += "&#39;"; break;
    default:
      // Control characters have no place in a page.
      if (static_cast<unsigned char>(letter) >= ' ' || letter == '\n')
        result += letter;
    }
  }
  return result;
}

std::string base64(std::string_view bytes) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string result;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    std::uint32_t three = 0;
    for (std::size_t i = 0; i < 3; ++i)
      three = three << 8 | (at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : 0U);
    for (std::size_t i = 0; i < 4; ++i)
      result += at + i > bytes.size() ? '=' : kLetters[three >> (18 - 6 * i) & 63U];
  }
  return result;
}

class Page {
 public:
  Page(std::string& html, const DrawPng& png) : m_html(html), m_png(png) {}

  void operator()(const ReportParagraph& paragraph) {
    const std::string name = paragraph.style == ReportParagraph::Style::Heading ? "h2" : "p";
    m_html += '<' + name + '>' + escaped(paragraph.text);
    if (!paragraph.beside.empty())
      m_html += " <small>" + escaped(paragraph.beside) + "</small>";
    m_html += "</" + name + ">\n";
  }
  void operator()(const ReportSentences& block) {
    heading({}, block.title, block.note);
    for (const auto& sentence : block.sentences) {
      m_html += "<p class=\"sentence\">";
      for (const ReportSentences::Part& part : sentence)
        m_html += part.isStrong ? "<b>" + escaped(part.text) + "</b>" : escaped(part.text);
      m_html += "</p>\n";
    }
  }
  void operator()(const ReportRuledLines& block) {
    constexpr int kLines = 6;
    element("h2", block.title);
    for (int line = 0; line < kLines; ++line)
      m_html += "<div class=\"ruled\"></div>\n";
  }
  void operator()(const ReportTable& table) {
    if (!table.title.empty())
      heading(table.tag, table.title, table.note);
    m_html += table.areTiles ? "<div class=\"table\"><table class=\"tiles\">\n<thead>\n"
                             : "<div class=\"table\"><table>\n<thead>\n";
    groups(table);
    m_html += "<tr>";
    for (const ReportColumn& column : table.columns) {
      m_html += column.isLeftAligned ? "<th class=\"left\"" : "<th";
      if (!column.words.empty())
        m_html += " title=\"" + escaped(column.words) + '"';
      m_html += '>' + escaped(column.header) + "</th>";
    }
    m_html += "</tr>\n</thead>\n<tbody>\n";
    for (const ReportRow& row : table.rows)
      tableRow(table, row);
    m_html += "</tbody>\n</table></div>\n";
  }
  void operator()(const ReportPicture& picture) {
    m_html += "<figure>";
    heading({}, picture.title, picture.note);
    m_html += "<img alt=\"" + escaped(picture.title) + "\" src=\"data:image/png;base64," +
              base64(m_png(picture)) + "\">";
    if (!picture.caption.empty())
      element("figcaption", picture.caption);
    m_html += "</figure>\n";
  }
  void operator()(const ReportPageBreak&) { m_html += "<hr>\n"; }
  void operator()(const FormSheet&) {} // a form is for paper

 private:
  void element(const std::string& name, std::string_view text) {
    m_html += '<' + name + '>' + escaped(text) + "</" + name + ">\n";
  }
  void heading(const std::optional<ReportTag>& tag, const std::string& title, const std::string& note) {
    element("h2", tag && tag->words != title ? tag->words + " – " + title : title);
    if (!note.empty())
      element("p", note);
  }
  void groups(const ReportTable& table) {
    if (table.groups.empty())
      return;
    m_html += "<tr>";
    for (const ReportColumnGroup& group : table.groups)
      m_html += "<th class=\"group\" colspan=\"" + std::to_string(group.columns) + "\">" +
                escaped(group.title) + "</th>";
    m_html += "</tr>\n";
  }
  void tableRow(const ReportTable& table, const ReportRow& row) {
    std::string classes;
    if (row.emphasis != ReportRow::Emphasis::None)
      classes = row.emphasis == ReportRow::Emphasis::Total ? "total" : "highlighted";
    if (row.beginsSection)
      classes += classes.empty() ? "section" : " section";
    if (row.isPale)
      classes += classes.empty() ? "pale" : " pale";
    m_html += classes.empty() ? "<tr>" : "<tr class=\"" + classes + "\">";
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const std::string text = escaped(row.cells[i].text);
      if (row.isNote && i > 0) {
        m_html +=
            "<td class=\"left\" colspan=\"" + std::to_string(row.cells.size() - 1) + "\">" + text + "</td>";
        break;
      }
      m_html += (table.columns[i].isLeftAligned ? "<td class=\"left\">" : "<td>") +
                (row.cells[i].isStrong ? "<b>" + text + "</b>" : text) + "</td>";
    }
    m_html += "</tr>\n";
  }

  std::string& m_html;
  const DrawPng& m_png;
};

} // namespace

std::string reportHtml(const Report& report, std::string_view language, const DrawPng& png,
                       const TaskWatch& watch) {
  std::string html = "<!DOCTYPE html>\n<html lang=\"" + std::string(language) +
                     "\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                     escaped(report.subject.empty() ? report.title : report.subject + " – " + report.title) +
                     "</title>\n<style>" + std::string(kStyle) + "</style>\n</head>\n<body>\n<h1>" +
                     escaped(report.title) + "</h1>\n<p>" + escaped(report.subject) + "</p>\n";
  Page page(html, png);
  watch.progress(0, report.blocks.size());
  for (const ReportBlock& block : report.blocks) {
    if (watch.isCancelled())
      return {};
    std::visit(page, block);
    watch.advance();
  }
  return html + "</body>\n</html>\n";
}

} // namespace hooptab
