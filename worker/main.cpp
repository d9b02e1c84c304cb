// sonoria-worker: converts the jobs the engine sends on standard input, one after the other,
// and reports on standard output (the protocol is in WorkerProtocol.h). It ends on "quit" or at
// the end of its input, so it never outlives the engine that feeds it.
#include "WorkerProtocol.h"
#include "WorkerTranscode.h"

extern "C" {
#include <libavutil/log.h>
}

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace {
using Clock = std::chrono::steady_clock;
// Progress is reported at most this often, or at each further 1 % of the job.
constexpr auto kProgressInterval = std::chrono::milliseconds(100);

// Standard input, split into lines. Between frames only what is already there is read, so that
// a cancel or quit is seen at once while later jobs wait their turn.
class InputLines {
public:
    // Reads what is there (waiting for a whole line when `wait`); false once the input ended
    // and no line is left.
    bool fill(bool wait) {
        while (!m_ended) {
            pollfd input{STDIN_FILENO, POLLIN, 0};
            const int ready = ::poll(&input, 1, wait && m_lines.empty() ? -1 : 0);
            if (ready < 0 && errno == EINTR)
                continue;
            if (ready <= 0)
                break;
            char chunk[4096];
            const ssize_t got = ::read(STDIN_FILENO, chunk, sizeof chunk);
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0) {
                m_ended = true;
                break;
            }
            m_partial.append(chunk, std::size_t(got));
            for (std::size_t end = m_partial.find('\n'); end != std::string::npos;
                 end = m_partial.find('\n')) {
                m_lines.push_back(m_partial.substr(0, end));
                m_partial.erase(0, end + 1);
            }
        }
        return !m_lines.empty();
    }
    std::deque<std::string>& lines() { return m_lines; }

private:
    std::deque<std::string> m_lines;
    std::string m_partial;
    bool m_ended = false;
};

void send(const worker::Message& message) {
    const std::string line = worker::formatLine(message);
    std::size_t written = 0;
    while (written < line.size()) {
        const ssize_t n = ::write(STDOUT_FILENO, line.data() + written, line.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            std::_Exit(1); // the engine is gone: nobody is left to convert for
        written += std::size_t(n);
    }
}

int intField(const worker::Message& message, const std::string& key) {
    return std::atoi(message.field(key).c_str());
}

// Runs one job; returns false when the worker was told to quit meanwhile.
bool runJob(const worker::Message& job, InputLines& input) {
    const std::string id = job.field("id");
    worker::TranscodeJob request{job.field("in"),
                                 job.field("out"),
                                 job.field("codec"),
                                 intField(job, "ar"),
                                 std::atoll(job.field("b").c_str()),
                                 intField(job, "ac")};
    bool quit = false;
    bool cancelled = false;
    Clock::time_point lastReport{};
    std::int64_t lastPermille = -10;
    worker::TranscodeHooks hooks;
    hooks.cancelled = [&] {
        input.fill(false);
        // A cancel of this job is taken out; the jobs after it stay queued.
        std::deque<std::string>& lines = input.lines();
        for (auto line = lines.begin(); line != lines.end();) {
            if (!line->starts_with("cancel") && !line->starts_with("quit")) {
                ++line; // a job for later: not parsed on every frame
                continue;
            }
            const worker::Message message = worker::parseLine(*line);
            if (message.word == "quit")
                quit = true;
            if (message.word == "cancel" && message.field("id") == id) {
                cancelled = true;
                line = lines.erase(line);
            } else {
                ++line;
            }
        }
        return cancelled || quit;
    };
    hooks.progress = [&](std::int64_t done, std::int64_t total) {
        const Clock::time_point now = Clock::now();
        const std::int64_t permille = total > 0 ? done * 1000 / total : 0;
        if (now - lastReport < kProgressInterval && permille < lastPermille + 10)
            return;
        lastReport = now;
        lastPermille = permille;
        send({"progress",
              {{"id", id}, {"done", std::to_string(done)}, {"total", std::to_string(total)}}});
    };
    if (request.sampleRate <= 0 || request.channels <= 0) {
        send({"failed", {{"id", id}, {"reason", "Invalid job: no sample rate or channels"}}});
        return true;
    }
    const worker::TranscodeResult result = worker::transcode(request, hooks);
    switch (result.outcome) {
    case worker::TranscodeOutcome::Done:
        if (result.reason.empty())
            send({"done", {{"id", id}}});
        else
            send({"done", {{"id", id}, {"decoding", result.reason}}});
        break;
    case worker::TranscodeOutcome::Failed:
        send({"failed", {{"id", id}, {"reason", result.reason}}});
        break;
    case worker::TranscodeOutcome::Cancelled:
        send({"cancelled", {{"id", id}}});
        break;
    }
    return !quit;
}
} // namespace

int main() {
    // A closed pipe is reported by write() instead of ending the worker silently.
    std::signal(SIGPIPE, SIG_IGN);
    // The libraries' own messages would only fill a pipe nobody reads: every failure is
    // reported in the protocol, in the words ffmpeg uses for it.
    av_log_set_level(AV_LOG_QUIET);
    InputLines input;
    // The end of the input ends the worker once the jobs already received are done (the engine
    // that closed it reads no more; one that died took this process with it).
    while (input.fill(true)) {
        const worker::Message message = worker::parseLine(input.lines().front());
        input.lines().pop_front();
        if (message.word == "quit")
            break;
        if (message.word == "job" && !runJob(message, input))
            break;
    }
    return 0;
}
