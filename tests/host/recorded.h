// The recording platform as tests of the neutral code use it.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "host/host_context.h"
#include "host/platform/recording/control.h"

using testing::HasSubstr;
using testing::Not;

// The calls since the last time, one a line.
inline std::string takeLog() {
    std::string log(recordingTakeLog(nullptr, 0) + 1, '\0');
    log.resize(recordingTakeLog(log.data(), log.size()));
    return log;
}

class RecordedHost : public testing::Test {
protected:
    RecordedHost() { recordingReset(); }
    ~RecordedHost() override {
        EXPECT_TRUE(host::makeHostContextCurrent(nullptr, {}));
        recordingReset();
    }
};
