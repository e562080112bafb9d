#include <gmock/gmock.h>

#include "EmbeddedRecord.h"
#include "Transcript.h"

namespace vantorel {
namespace {

using testing::ElementsAre;
using namespace std::chrono_literals;

TEST(EmbeddedTranscriptTest, WritesTheTimeInSecondsWithThreeDecimals) {
  EmbeddedRecord record;
  VirtualTime time;
  Transcript transcript(time, record.sink());
  transcript.write("at the start");
  time.advance(1234ms);
  transcript.write("later");
  time.advance(99998766ms);
  transcript.write("a day after");
  EXPECT_THAT(record.timedLines(),
              ElementsAre("    0.000  at the start", "    1.234  later", "100000.000  a day after"));
}

TEST(EmbeddedTranscriptTest, RoundsToTheNearestMillisecond) {
  EmbeddedRecord record;
  VirtualTime time;
  Transcript transcript(time, record.sink());
  time.advance(16499us);
  transcript.write("below");
  time.advance(1us);
  transcript.write("half-way");
  time.advance(983499us);
  transcript.write("nearly a second");
  time.advance(1us);
  transcript.write("a second");
  EXPECT_THAT(record.timedLines(), ElementsAre("    0.016  below", "    0.017  half-way",
                                               "    1.000  nearly a second", "    1.000  a second"));
}

TEST(EmbeddedTranscriptTest, DropsWhatIsWrittenAfterItWasClosed) {
  EmbeddedRecord record;
  VirtualTime time;
  Transcript transcript(time, record.sink());
  transcript.write("kept");
  transcript.close();
  transcript.write("dropped");
  EXPECT_THAT(record.lines(), ElementsAre("kept"));
}

}  // namespace
}  // namespace vantorel
