#pragma once

#include <map>
#include <string>

// The worker's line protocol. One message per line: a word, then TAB-separated key=value
// fields whose values are percent-encoded ('%', TAB, CR and LF, and every other control byte),
// so that any path survives.
//
//   engine → worker   job id=7 in=SRC out=TMP codec=libmp3lame ar=44100 b=192000 ac=2
//                     cancel id=7
//                     quit                      (end of input does the same)
//   worker → engine   progress id=7 done=SAMPLES total=SAMPLES
//                     done id=7
//                     failed id=7 reason=TEXT   (ffmpeg's words, for the engine to recognise)
//                     cancelled id=7
namespace worker {

struct Message {
    std::string word;
    std::map<std::string, std::string> fields;

    std::string field(const std::string& key) const;
};

std::string percentEncode(const std::string& value);
std::string percentDecode(const std::string& value);
// A line without its end of line.
Message parseLine(const std::string& line);
// The line with its end of line.
std::string formatLine(const Message& message);

} // namespace worker
