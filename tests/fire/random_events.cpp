// Whole programs under random events, with what must hold after each.
//
//   random_events [--seed N] [--events N] [--programs N] [--verbose] [--keep-going]
//
// Every program has a seed of its own: the first has N, the next N + 1. A failure prints the seed and the events of
// its program as a script; `--seed N --programs 1` repeats it, and with `--verbose` the events are told before they
// run, so that the last one is known even when the whole process dies. With `--keep-going` a failure is told in one
// line and the next program begins.
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "core/run_time_error.h"
#include "fire/event_maker.h"
#include "fire/invariants.h"
#include "program/assembly.h"

namespace zefirondo {
namespace {

constexpr unsigned kLongestEvent = 120;  // seconds, until an event counts as one without end

struct Options {
  std::uint64_t seed = 1;
  bool seed_by_clock = false;
  std::size_t events = std::numeric_limits<std::size_t>::max();
  std::size_t programs = std::numeric_limits<std::size_t>::max();
  bool verbose = false;
  bool keep_going = false;
};

struct Totals {
  std::size_t programs = 0;
  std::size_t events = 0;
  std::size_t boxes = 0;                    // designed or opened
  std::map<std::string, std::size_t> ends;  // by what was said
};

std::uint64_t g_seed = 0;

void OnAlarm(int) {
  char text[100];
  const int length = std::snprintf(text, sizeof text, "an event without end, --seed %llu --programs 1 --verbose\n",
                                   static_cast<unsigned long long>(g_seed));
  static_cast<void>(!::write(STDERR_FILENO, text, static_cast<std::size_t>(length)));
  std::abort();
}

/// One program from its start to its end, or until it had its share of events.
class Run {
 public:
  Run(std::uint64_t seed, const std::filesystem::path& folder, bool verbose)
      : dice_(seed), files_(folder), verbose_(verbose) {
    files_.LayOut(dice_);
    const Language language = dice_.Percent(30) ? Language::Italian : Language::English;
    platform_ = std::make_unique<ChancePlatform>(dice_, files_);
    platform_->told_at_once = verbose;
    if (dice_.Percent(1)) platform_->screen_width = 1023;
    program_ = std::make_unique<Program>(*platform_, language, folder);
    ConnectProgram(*program_);
    program_->windows.mdithsm.window.width = 28800;
    program_->windows.mdithsm.window.height = 16200;
    invariants_ = std::make_unique<Invariants>(*program_, *platform_);
    maker_ = std::make_unique<EventMaker>(dice_, *program_, *platform_);
    share_ = 200 + dice_.Below(2000);
  }

  /// What did not hold; empty when all did.
  std::string Play(std::size_t most, Totals& totals) {
    std::string failure = Begin();
    for (std::size_t i = 0; failure.empty() && i < std::min(most, share_); ++i) {
      if (program_->run != RunState::Running) {
        failure = ActAfterTheEnd();
        break;
      }
      failure = One(maker_->Next());
      ++totals.events;
      if (TabCame()) ++totals.boxes;
    }
    ++totals.programs;
    ++totals.ends[HowItEnded()];
    return failure;
  }

  [[nodiscard]] const std::string& script() const { return script_; }

 private:
  void Log(const std::string& line) {
    script_ += line + "\n";
    if (verbose_) {
      std::printf("%s\n", line.c_str());
      std::fflush(stdout);
    }
  }

  std::string Begin() {
    const bool with_project = dice_.Percent(15);
    const std::string line = with_project ? files_.RandomProject(dice_).string() : "";
    platform_->BeginEvent();
    Log("start \"" + line + "\"");
    Start(*program_, line);
    KeepWords();
    return invariants_->AfterStart(with_project);
  }

  void KeepWords() {
    for (const std::string& line : platform_->given) script_ += "  " + line + "\n";
    if (!platform_->boxes.empty()) last_words_ = platform_->boxes.back().text;
  }

  std::string One(const Event& event) {
    platform_->BeginEvent();
    invariants_->BeforeEvent(event);
    Log(ScriptLine(event));
    ::alarm(kLongestEvent);
    try {
      Perform(*program_, *platform_, event);
    } catch (const std::exception& error) {
      return std::string("a failure left the event: ") + error.what();
    }
    KeepWords();
    return invariants_->AfterEvent();
  }

  /// A program that has ended does nothing more.
  std::string ActAfterTheEnd() {
    const RunState end = program_->run;
    for (int i = 0; i < 3; ++i) {
      platform_->BeginEvent();
      const Event event = maker_->Next();
      if (event.act == Act::Clipboard || event.act == Act::LoseFile) continue;
      Log("# behind the end: " + ScriptLine(event));
      Perform(*program_, *platform_, event);
      if (program_->run != end || !platform_->given.empty() || platform_->ends != 1) return "the end was not the end";
    }
    return {};
  }

  bool TabCame() {
    const std::size_t before = std::exchange(tabs_, program_->windows.frmthsm.tabs.size());
    return tabs_ > before && tabs_ > 4;
  }

  [[nodiscard]] std::string HowItEnded() const {
    if (program_->run == RunState::Running) return "still running";
    if (program_->run == RunState::Ended) return "closed by the person";
    return last_words_;
  }

  Dice dice_;
  SampleFiles files_;
  bool verbose_;
  std::unique_ptr<ChancePlatform> platform_;
  std::unique_ptr<Program> program_;
  std::unique_ptr<Invariants> invariants_;
  std::unique_ptr<EventMaker> maker_;
  std::size_t share_ = 0;
  std::size_t tabs_ = 4;
  std::string script_;
  std::string last_words_;
};

bool ReadOptions(int count, char** words, Options& options) {
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    if (word == "--verbose" || word == "--keep-going") {
      (word == "--verbose" ? options.verbose : options.keep_going) = true;
      continue;
    }
    if (i + 1 == count) return false;
    const std::string value = words[++i];
    const std::uint64_t number = std::strtoull(value.c_str(), nullptr, 10);
    if (word == "--seed") {
      options.seed_by_clock = value == "clock";
      options.seed = number;
    } else if (word == "--events") {
      options.events = number;
    } else if (word == "--programs") {
      options.programs = number;
    } else {
      return false;
    }
  }
  if (options.seed_by_clock) {
    options.seed = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count() / 1000);
  }
  return options.events != std::numeric_limits<std::size_t>::max() ||
         options.programs != std::numeric_limits<std::size_t>::max();
}

void Report(const Totals& totals) {
  std::printf("%zu events in %zu programs, %zu boxes designed or opened, and the programs ended:\n", totals.events,
              totals.programs, totals.boxes);
  for (const auto& [end, count] : totals.ends) std::printf("%8zu  %s\n", count, end.c_str());
}

int PlayAll(const Options& options, const std::filesystem::path& folder) {
  std::printf("seed %llu\n", static_cast<unsigned long long>(options.seed));
  Totals totals;
  std::size_t failures = 0;
  std::uint64_t seed = options.seed;
  while (totals.events < options.events && totals.programs < options.programs) {
    g_seed = seed;
    Run run(seed, folder, options.verbose);
    const std::string failure = run.Play(options.events - totals.events, totals);
    if (!failure.empty()) {
      std::printf("%s# %s\n# repeat with --seed %llu --programs 1\n", options.keep_going ? "" : run.script().c_str(),
                  failure.c_str(), static_cast<unsigned long long>(seed));
      if (!options.keep_going) return 1;
      ++failures;
    }
    ++seed;
  }
  Report(totals);
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace zefirondo

int main(int count, char** words) {
  using namespace zefirondo;
  Options options;
  if (!ReadOptions(count, words, options)) {
    std::fprintf(stderr, "random_events [--seed N|clock] --events N|--programs N [--verbose] [--keep-going]\n");
    return 2;
  }
  std::signal(SIGALRM, OnAlarm);
  std::string pattern = (std::filesystem::temp_directory_path() / "zefirondo-fire-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) return 2;
  const int result = PlayAll(options, pattern);
  std::error_code ignored;
  std::filesystem::remove_all(pattern, ignored);
  return result;
}
