"""The figures of a run, and whether it failed."""

WARM = 10  # minutes after which memory stays level; a sixth of a shorter run
# And some MB: the toolkit keeps pictures of what it has drawn until they are 10 MB, which takes it half an hour, and for
# each element this driver has asked about what a screen reader would ask for next. A heap profile of 44 minutes has
# grown by 12.3 MB, of which 7.3 were the first and 3.9 the second.
GROWTH, SLACK = 1.10, 18.0


def leak(memory, minutes):
    """What grew beyond measure, as a sentence, or None."""
    begin = min(WARM, minutes / 6)
    early = [sample for sample in memory.samples if begin <= sample[0] <= begin * 1.5]
    late = [sample for sample in memory.samples if sample[0] >= minutes - begin / 2]
    if not early or not late:
        return None
    for column, name in ((1, "resident memory"), (2, "heap")):
        was, is_now = (sorted(sample[column] for sample in part)[len(part) // 2] for part in (early, late))
        if is_now > was * GROWTH + SLACK:
            return f"the {name} grew from {was:.1f} MB at minute {begin:.0f} to {is_now:.1f} MB at the end"
    was, is_now = min(sample[3] for sample in early), min(sample[3] for sample in late)
    if is_now > was + 8:
        return f"the threads grew from {was} to {is_now}"
    was, is_now = min(sample[4] for sample in early), min(sample[4] for sample in late)
    if is_now > was + 20:
        return f"the open files grew from {was} to {is_now}"
    return None


def counted(counter):
    return ", ".join(f"{name} {count}" for name, count in sorted(counter.items(), key=lambda item: (-item[1], item[0])))


def summarise(run):
    """Writes summary.txt and says it; 0 when nothing failed, else 1."""
    journal, memory, loop = run.journal, run.memory, run.loop
    leaked = leak(memory, journal.minutes())
    if leaked:
        journal.fail("memory", leaked, picture=False)
    lines = [f"Rehearsed for {journal.minutes():.1f} minutes with seed {run.seed}: {sum(journal.acts.values())} acts, "
             f"{journal.keys} keys, {journal.starts} songs begun, {run.heard_right} times heard the song that was shown, "
             f"{run.disk_watch.read} versions of files read whole.",
             f"Acts: {counted(journal.acts)}",
             f"Accidents: {counted(journal.accidents)}"]
    if loop.spread:
        spread = loop.spread
        lines.append(f"The event loop answered {spread['count']} times: half within {spread['half'] * 1000:.1f} ms, 99 % within "
                     f"{spread['of100'] * 1000:.1f}, 99.9 % within {spread['of1000'] * 1000:.1f}, the longest "
                     f"{spread['longest'] * 1000:.1f} ms. For {spread['unwatched']:.1f} s in all the watch came late itself.")
    busy = [stall for stall in loop.stalls if stall["judged"] == "machine"]
    stalls = [stall for stall in loop.stalls if stall["judged"] == "program"]
    lines.append(f"Stalls over 100 ms: {len(stalls)} of the program, {len(busy)} of the busy machine alone.")
    for stall in stalls:
        told = stall.get("told", [])
        lines.append(f"  {stall['waited'] * 1000:.0f} ms ({stall['worked'] * 1000:.0f} at work, {stall['queued'] * 1000:.0f} "
                     f"queued, helpers {stall['helpers'] * 1000:.0f}) after {stall.get('after', '')!r}: {told[0] if told else 'not caught'}")
    for minute in (1, 10, 30, 60):
        sample = memory.at(minute)
        if sample:
            lines.append(f"Memory at minute {minute}: {sample[1]:.1f} MB resident, {sample[2]:.1f} MB heap, {sample[3]} threads, "
                         f"{sample[4]} files")
    begin = min(WARM, journal.minutes() / 6)
    slopes = [memory.slope(column, begin) for column in (1, 2)]
    if None not in slopes:
        lines.append(f"Growth from minute {begin:.0f} on: {slopes[0]:+.1f} MB resident and {slopes[1]:+.1f} MB heap an hour")
    lines.append(f"Failures: {counted(journal.failures) or 'none'}")
    lines += [f"  {minute:6.2f} {kind}: {sentence[:300]}" for minute, kind, sentence in journal.failed]
    text = "\n".join(lines)
    (run.folder / "summary.txt").write_text(text + "\n", "utf-8")
    print(text, flush=True)
    return 1 if journal.failures else 0
