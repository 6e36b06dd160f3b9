#include "complaints.h"

#include <glib.h>

#include <mutex>
#include <utility>

namespace ordex::desktop_tests {
namespace {

struct Kept {
  std::mutex mutex;
  std::vector<std::string> texts;
};

Kept& TheKept() {
  static Kept kept;
  return kept;
}

GLogWriterOutput Keep(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer data) {
  if ((level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING)) != 0) {
    gchar* text = g_log_writer_format_fields(level, fields, count, FALSE);
    const std::lock_guard lock(TheKept().mutex);
    TheKept().texts.emplace_back(text);
    g_free(text);
  }
  return g_log_writer_default(level, fields, count, data);
}

}  // namespace

void KeepComplaints() {
  g_log_set_writer_func(Keep, nullptr, nullptr);
}

std::vector<std::string> TakeComplaints() {
  const std::lock_guard lock(TheKept().mutex);
  return std::exchange(TheKept().texts, {});
}

}  // namespace ordex::desktop_tests
