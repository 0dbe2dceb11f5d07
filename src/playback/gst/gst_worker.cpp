#include "playback/gst/gst_worker.h"

#include <optional>
#include <utility>
#include <variant>

#include "playback/gst/media_opener.h"
#include "playback/gst/mp3_length.h"
#include "playback/gst/sound_device.h"

namespace brevant {

namespace {

// Idle for so long after the start, the worker starts GStreamer and has the decoders loaded, so that the
// first song need not wait for them and the first window need not share the processor with them.
constexpr double kWarmUpAfter = 1.0;

}  // namespace

TCGstWorker::TCGstWorker(std::shared_ptr<TCGstShared> theShared, TCPlayerDesk::Handover work)
    : shared(std::move(theShared)), ticket(work.ticket), machine(std::move(work.machine)) {}

void TCGstWorker::Run() {
  const bool takesOver = ticket != shared->desk.FirstTicket();
  bool wanted = !takesOver || Carry(machine.OnTakeover(shared->desk.Now()));
  warm = takesOver || shared->options.use == TCGstUse::Measuring;
  while (wanted) {
    TCPlayerDesk::Item item;
    std::optional<double> wait = machine.TickDueIn(shared->desk.Now());
    const bool idle = !wait && !warm;
    if (idle) wait = kWarmUpAfter;
    const TCPlayerDesk::Wake wake = shared->desk.WaitForItem(ticket, wait, item);
    if (wake == TCPlayerDesk::Wake::Leave) break;
    if (wake == TCPlayerDesk::Wake::Tick && idle) WarmUp();
    if (wake == TCPlayerDesk::Wake::Item) TakeItem(item);
    wanted = Carry(machine.OnTick(Read(), shared->desk.Now()));
  }
  TCGstPipeline::Discard(std::move(pipeline), shared->jobs);
  shared->desk.LeaveWork(ticket);
}

void TCGstWorker::Initialise() {
  if (std::exchange(initialised, true)) return;
  GError* error = nullptr;
  // Crashes are the program's own business, not the plug-in loader's.
  gst_segtrap_set_enabled(FALSE);
  if (gst_init_check(nullptr, nullptr, &error)) return;
  initError = error == nullptr ? "GStreamer does not start." : error->message;
  g_clear_error(&error);
}

void TCGstWorker::WarmUp() {
  warm = true;
  Initialise();
  if (!initError.empty()) return;
  shared->jobs.Start([] {
    for (const char* name : {"playbin", "uridecodebin", "decodebin", "playsink", "typefind", "filesrc",
                             "appsrc", "audioconvert", "audioresample", "volume", "pulsesink", "wavparse",
                             "id3demux", "mpegaudioparse", "mpg123audiodec", "asfdemux", "avdec_wmav2"}) {
      const TCGstRef<GstElement> loaded = OwnElement(gst_element_factory_make(name, nullptr));
    }
  });
}

void TCGstWorker::TakeItem(TCPlayerDesk::Item& item) {
  if (const auto* command = std::get_if<TCPlayerCommand>(&item)) {
    Carry(machine.OnCommand(*command, shared->desk.Now()));
    return;
  }
  auto& note = std::get<TCPlayerNote>(item);
  if (note.kind == TCPlayerNote::Kind::PipelineReady && pipeline && machine.IsProbing(note.number)) {
    note.length = pipeline->Duration();
    note.lengthNeedsScan = pipeline->IsBareMp3();
  }
  Carry(machine.OnNote(note, shared->desk.Now()));
}

bool TCGstWorker::Carry(const TCPlayerMachine::Actions& actions) {
  if (!shared->desk.Publish(ticket, machine)) return false;
  for (const TCPlayerAction& action : actions) Perform(action);
  return true;
}

void TCGstWorker::Perform(const TCPlayerAction& action) {
  Initialise();
  switch (action.kind) {
    case TCPlayerAction::Kind::OpenFile:
      OpenFile(action.number);
      break;
    case TCPlayerAction::Kind::MeasureLength:
      MeasureLength(action.number);
      break;
    case TCPlayerAction::Kind::Probe:
      BuildProbe(action);
      break;
    case TCPlayerAction::Kind::BuildPlaying:
    case TCPlayerAction::Kind::BuildPaused:
      Build(action);
      break;
    case TCPlayerAction::Kind::Discard:
      TCGstPipeline::Discard(std::move(pipeline), shared->jobs);
      break;
    case TCPlayerAction::Kind::Resume:
      if (pipeline) pipeline->SetState(GST_STATE_PLAYING);
      break;
    case TCPlayerAction::Kind::Pause:
      if (pipeline) pipeline->SetState(GST_STATE_PAUSED);
      break;
    case TCPlayerAction::Kind::Seek:
      if (pipeline && !pipeline->Seek(action.seconds))
        Tell(TCPlayerNote::Kind::SeekRefused, action.number, {});
      break;
    case TCPlayerAction::Kind::SetVolume:
      if (pipeline) pipeline->SetVolume(action.volume);
      break;
  }
}

void TCGstWorker::OpenFile(std::uint64_t load) {
  if (!initError.empty()) return Tell(TCPlayerNote::Kind::FileUnreadable, load, initError);
  const bool started = shared->jobs.Start([common = shared, load, url = machine.Url()] {
    TCSynthStore* synths = common->options.use == TCGstUse::Playing ? &common->synths : nullptr;
    TCPlayerNote note = OpenMedia(url, common->paths, synths);
    note.number = load;
    common->desk.Post(std::move(note));
  });
  if (!started) Tell(TCPlayerNote::Kind::FileUnreadable, load, "The system has no more threads.");
}

void TCGstWorker::MeasureLength(std::uint64_t load) {
  shared->jobs.Start([common = shared, load, song = machine.Playable()] {
    TCPlayerNote note;
    note.kind = TCPlayerNote::Kind::LengthMeasured;
    note.number = load;
    note.length = MeasureMp3Length(song->nativePath);
    common->desk.Post(std::move(note));
  });
}

void TCGstWorker::Build(const TCPlayerAction& action) {
  TCOpenedSink device = OpenSink(shared->options.audioSink);
  // Opening may have taken long; what a newer worker does meanwhile must not sound twice.
  if (!shared->desk.Publish(ticket, machine)) return;
  if (!device.sink) return Tell(TCPlayerNote::Kind::SinkFailed, action.number, device.detail);
  TCGstPipeline::Setup setup;
  setup.build = action.number;
  setup.sink = std::move(device.sink);
  setup.volume = action.volume;
  Start(std::move(setup),
        action.kind == TCPlayerAction::Kind::BuildPlaying ? GST_STATE_PLAYING : GST_STATE_PAUSED);
}

void TCGstWorker::BuildProbe(const TCPlayerAction& action) {
  TCGstPipeline::Setup setup;
  setup.build = action.number;
  Start(std::move(setup), GST_STATE_PAUSED);
}

void TCGstWorker::Start(TCGstPipeline::Setup setup, GstState state) {
  const std::uint64_t build = setup.build;
  setup.song = machine.Playable();
  if (setup.song->midi) setup.synth = shared->synths.Get();
  // Not the pipeline's to keep alive: the desk belongs to the player.
  setup.notify = [desk = std::weak_ptr(shared)](TCPlayerNote note) {
    if (const auto common = desk.lock()) common->desk.Post(std::move(note));
  };
  pipeline = TCGstPipeline::Build(std::move(setup));
  if (!pipeline) return Tell(TCPlayerNote::Kind::SourceFailed, build, "A part of GStreamer is missing.");
  // The reason comes from the bus before this does; without one, this is all there is to tell.
  if (!pipeline->SetState(state)) {
    Tell(TCPlayerNote::Kind::SourceFailed, build, "The file cannot be played.");
  }
}

void TCGstWorker::Tell(TCPlayerNote::Kind kind, std::uint64_t number, std::string detail) {
  TCPlayerNote note;
  note.kind = kind;
  note.number = number;
  note.detail = std::move(detail);
  shared->desk.Post(std::move(note));
}

TCPipelineReading TCGstWorker::Read() const {
  TCPipelineReading reading;
  reading.soundSystemStuck = shared->desk.StuckWorkers() > 0;
  if (pipeline) {
    reading.position = pipeline->Position();
    reading.length = pipeline->Duration();
  }
  return reading;
}

}  // namespace brevant
