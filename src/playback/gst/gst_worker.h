// The one thread that talks to GStreamer: takes commands and notes off the desk, lets the machine decide, and
// carries the actions out. When it gets stuck, another takes its place with a copy of the machine.
#pragma once

#include <memory>
#include <string>

#include "playback/gst/gst_pipeline.h"
#include "playback/gst/gst_shared.h"

namespace brevant {

class TCGstWorker {
 public:
  TCGstWorker(std::shared_ptr<TCGstShared> shared, TCPlayerDesk::Handover work);

  // Until the desk no longer wants this worker.
  void Run();

 private:
  // Starts GStreamer, once.
  void Initialise();
  void WarmUp();
  void TakeItem(TCPlayerDesk::Item& item);
  // Publishes the decision, then acts. False when this worker was replaced.
  bool Carry(const TCPlayerMachine::Actions& actions);
  void Perform(const TCPlayerAction& action);
  void OpenFile(std::uint64_t load);
  void MeasureLength(std::uint64_t load);
  void Build(const TCPlayerAction& action);
  void BuildProbe(const TCPlayerAction& action);
  void Start(TCGstPipeline::Setup setup, GstState state);
  void Tell(TCPlayerNote::Kind kind, std::uint64_t number, std::string detail);
  [[nodiscard]] TCPipelineReading Read() const;

  std::shared_ptr<TCGstShared> shared;
  TCPlayerDesk::Ticket ticket;
  TCPlayerMachine machine;
  std::unique_ptr<TCGstPipeline> pipeline;
  bool initialised = false;
  std::string initError;
  bool warm = false;
};

}  // namespace brevant
