"""The demo tunes, composed for this program. Each function writes one score."""

from score import Score
from synth import CLAP, CLOSED_HAT, KICK, OPEN_HAT, RIM, SHAKER, SNARE


def morning_ferry():
    """Bright folk rock in D."""
    score = Score(tempo=116)
    chords = "D A Bm G D A G A D G,A D"
    lead, guitar, organ = score.part("lead", gain=0.32), score.part("guitar", gain=0.3), score.part("organ", gain=0.1)
    bass, kit = score.part("bass", gain=0.75), score.part("drums", gain=0.6)
    score.melody(lead, """F#4:1 A4:.5 B4 A4:1 F#4 | E4:1.5 F#4:.5 E4:1 C#4 | D4:1 F#4:.5 A4 B4:1 A4 | G4:1.5 A4:.5 B4:2 |
        A4:1 D5:.5 C#5 D5:1 A4 | C#5:1.5 B4:.5 A4:1 E4 | B4:1 A4:.5 G4 B4:1 D5 | C#5:2 A4:1 C#5 |
        D5:1 A4:.5 B4 A4:1 F#4 | G4:1 B4 C#5 E5 | D5:3.5 -:.5""")
    strum = [(0, 0.9), (1, 0.45), (1.5, 0.9), (2.5, 0.45), (3, 0.45), (3.5, 0.45)]
    score.comp(guitar, chords, strum, "D3", strum=0.02)
    score.comp(organ, chords, [(0, 1.9), (2, 1.9)], "A3")
    score.bass(bass, chords, [(0, 0.9, 0), (1.5, 0.4, 0), (2, 0.9, 7), (3, 0.9, 12)])
    score.drums(kit, 10, {KICK: "x..xx...", SNARE: "..x...x.", CLOSED_HAT: "xoxoxoxo"})
    score.drums(kit, 1, {KICK: "x.......", OPEN_HAT: "x......."}, first_bar=10)
    score.sing(0, "M: Grey water, silver light,")
    score.sing(2, "M: the morning ferry pulls away.")
    score.sing(4, "F: I left the harbour late last night,")
    score.sing(6, "F: I will be home by break of day.")
    score.sing(8, "D: Ring the bell and cast the line,")
    score.sing(10, "D: sail on!")
    return score


def paper_lanterns():
    """A music-box waltz in A minor."""
    score = Score(tempo=126, beats_per_bar=3)
    chords = "Am Am Dm E Am F Dm E F C Dm Am Dm Am E Am Am"
    box, left, pad = score.part("music box", gain=0.5), score.part("music box", gain=0.2), score.part("strings", gain=0.12)
    score.melody(box, """A4:1 C5 E5 | D5:2 C5:1 | F5 E5 D5 | E5:3 | E5:1 C5 A4 | A5:2 G5:1 | F5 D5 F5 | E5:2 G#4:1 |
        A5:2 C5:1 | G5:2 E5:1 | F5 E5 D5 | C5:2 A4:1 | D5 F5 E5 | C5:2 A4:1 | B4 G#4 B4 | A4:3 | A5:3""")
    score.arpeggio(left, chords, (0, 1, 2), 1, "A3", ring=1.4)
    score.comp(pad, chords, [(0, 2.9)], "E3")
    score.sing(0, "F: Paper lanterns on the tide,")
    score.sing(4, "F: each a wish we could not hide,")
    score.sing(8, "F: one for sorrow, one for rain,")
    score.sing(12, "F: one to bring you home again.")
    return score


def gravel_road_shuffle():
    """Twelve bars of blues in A."""
    score = Score(tempo=138, swing=True)
    chords = "A7 A7 A7 A7 D7 D7 A7 A7 E7 D7 A7 E7 A7"
    lead, organ = score.part("guitar", gain=0.75), score.part("organ", gain=0.16)
    bass, kit = score.part("bass", gain=0.8), score.part("drums", gain=0.55)
    score.melody(lead, """E4:.5 G4 A4:1 C5:.5 A4 G4:1 | A4:1.5 G4:.5 E4:2 | E4:.5 G4 A4:1 C5:.5 D5 C5:1 | A4:3 -:1 |
        A4:.5 C5 D5:1 D#5:.5 D5 C5:1 | D5:1.5 C5:.5 A4:2 | E4:.5 G4 A4:1 C5:.5 A4 G4:1 | A4:2 -:1 C#5:.5 D5 |
        E5:1 E5:.5 D5 B4:1 G#4 | D5:1 C5:.5 A4 F#4:1 A4 | E4:.5 G4 A4:1 C5:.5 A4 G4 E4 | A4:1 G#4:.5 G4 E4:2 | A3:4""")
    score.comp(organ, chords, [(0.5, 0.4), (1.5, 0.4), (2.5, 0.4), (3.5, 0.4)], "E3")
    score.bass(bass, chords, [(0, 0.9, 0), (1, 0.9, 4), (2, 0.9, 7), (3, 0.9, 9)])
    score.drums(kit, 12, {KICK: "x...x...", SNARE: "..x...x.", CLOSED_HAT: "x.xox.xo"})
    score.drums(kit, 1, {KICK: "x.......", OPEN_HAT: "x......."}, first_bar=12)
    score.sing(0, "M: Got gravel in my left shoe,")
    score.sing(2, "M: and a long road to your door.")
    score.sing(4, "M: Got gravel in my left shoe,")
    score.sing(6, "M: and my right one is no more.")
    score.sing(8, "M: If I ever reach your porch light,")
    score.sing(10, "M: I won't walk it any more.")
    return score


def over_the_roofs():
    """A slow ballad in F."""
    score = Score(tempo=76)
    chords = "F C Dm7 Bbmaj7 F Gm7 Bb,C F"
    piano, comp = score.part("electric piano", gain=0.5), score.part("electric piano", gain=0.17)
    pad, bass = score.part("strings", gain=0.14), score.part("bass", gain=0.6)
    kit = score.part("drums", gain=0.3)
    score.melody(piano, """C5:1.5 A4:.5 C5:1 D5 | E5:2 C5:1 G4 | F5:1.5 E5:.5 D5:1 A4 | D5:3 -:1 |
        C5:1.5 A4:.5 F5:1 E5 | D5:2 Bb4:1 D5 | F5 D5 E5 G5 | F5:4""")
    score.arpeggio(comp, chords, (0, 1, 2, 1), 0.5, "F3", ring=1.8)
    score.comp(pad, chords, [(0, 1.9), (2, 1.9)], "A3")
    score.bass(bass, chords, [(0, 1.8, 0), (2, 1.8, 7)], "F2")
    score.drums(kit, 7, {KICK: "x....x..", RIM: "..x...x.", SHAKER: "oooooooo"})
    score.sing(0, "F: Über den Dächern wird es still,")
    score.sing(2, "M: die Stadt legt ihre Lichter schlafen.")
    score.sing(4, "F: Ich zähle Fenster, wie ich will,")
    score.sing(6, "D: und träume von dem großen Hafen.")
    return score


def tin_roof_rain():
    """Marimba figures on five notes in G."""
    score = Score(tempo=128)
    chords = "G Em C D G Em C,D G"
    marimba, under = score.part("marimba", gain=0.5), score.part("marimba", gain=0.28)
    bass, shaker = score.part("bass", gain=0.5), score.part("drums", gain=0.35)
    score.melody(marimba, """D5:.5 B4 D5 E5 G5:1 E5 | G5:.5 E5 B4 E5 G5:1 B5 | C5:.5 E5 G5 E5 A5:1 G5 |
        F#5:.5 D5 A4 D5 F#5:1 A5 | B5:.5 G5 D5 G5 B5:1 A5 | G5:.5 E5 B4 E5 G5:2 |
        E5:.5 G5 C6 G5 D5 F#5 A5 F#5 | G5:3 -:1""")
    score.arpeggio(under, chords, (0, 2, 1, 2, 3, 2, 1, 2), 0.25, "G3")
    score.bass(bass, chords, [(0, 1.4, 0), (1.5, 0.4, 0), (2, 1.4, 7)], "G2")
    score.drums(shaker, 8, {SHAKER: "xoox", RIM: "...x..x."})
    return score


def neon_carousel():
    """Synthesiser pop in C minor."""
    score = Score(tempo=124)
    chords = "Cm Ab Eb Bb Cm Ab Eb Bb Ab Bb Cm"
    lead, sparkle = score.part("lead", gain=0.3), score.part("chip", gain=0.11)
    pad, bass = score.part("strings", gain=0.1), score.part("chip", gain=0.2)
    kit = score.part("drums", gain=0.65)
    score.melody(lead, """G5:.75 F5 Eb5:.5 C5:1 Eb5 | C5:1.5 Eb5:.5 F5:1 Eb5 | G5:.75 F5 G5:.5 Bb5:1 G5 | F5:3 D5:1 |
        G5:.75 F5 Eb5:.5 C5:1 G5 | Ab5:1.5 G5:.5 Eb5:1 C5 | Eb5:.75 F5 G5:.5 Bb5:1 C6 | D6:2 Bb5 |
        C6:1.5 Bb5:.5 Ab5:1 Eb5 | F5 G5 Ab5 Bb5 | C6:3 -:1""")
    score.arpeggio(sparkle, chords, (0, 1, 2, 3, 4, 3, 2, 1), 0.25, "C4", ring=0.8)
    score.comp(pad, chords, [(0, 3.8)], "G3")
    score.bass(bass, chords, [(i / 2, 0.4, 12 * (i % 2)) for i in range(8)], "C2", velocity=0.9)
    score.drums(kit, 10, {KICK: "x.x.x.x.", CLAP: "..x...x.", OPEN_HAT: ".o.o.o.o"})
    score.drums(kit, 1, {KICK: "x.......", OPEN_HAT: "x......."}, first_bar=10)
    return score


def white_night():
    """A tremolo melody over a low drone in E minor."""
    score = Score(tempo=92)
    chords = "Em Am B7 Em C Am B7 Em Em"
    lead, guitar = score.part("mandolin", gain=0.5), score.part("guitar", gain=0.3)
    bass, pad = score.part("bass", gain=0.7), score.part("strings", gain=0.1)
    song = Score(tempo=92)
    line = song.part("flute")
    song.melody(line, """B4:2 E5:1 F#5 | G5:2 E5:1 C5 | F#5:1.5 E5:.5 D#5:1 B4 | E5:4 | G5:2 E5:1 C5 |
        A5:2 G5:1 E5 | F#5 A5 G5 D#5 | E5:4 | B4:2 E4""")
    for note in line.notes:  # every note struck again and again, eight times a beat
        for i in range(round(note.length * 8)):
            score.add(lead, note.start + i / 8, 1 / 8, note.pitch, note.velocity * (0.75 if i else 1.0))
    score.comp(guitar, chords, [(1, 0.9), (2, 0.9), (3, 0.9)], "E3", strum=0.015)
    score.bass(bass, chords, [(0, 1.8, 0), (2, 1.8, 7)])
    score.comp(pad, chords, [(0, 3.9)], "B3")
    score.sing(0, "F: Белая ночь над тихой рекой,")
    score.sing(2, "F: небо не хочет уснуть.")
    score.sing(4, "M: Пой мне, подруга, песню со мной,")
    score.sing(6, "D: близок и ясен наш путь.")
    return score


def clockwork_polka():
    """A polka that is wound up tighter every eight bars."""
    score = Score(tempo=112, beats_per_bar=2)
    score.tempo_from_bar(8, 132)
    score.tempo_from_bar(16, 156)
    verse, middle = "C C G7 G7 G7 G7 C C", "F F C C G7 G7 C C"
    chords = f"{verse} {middle} {verse} C"
    tune = """E5:.5 G5 E5 C5 | E5:1 C5 | D5:.5 F5 D5 B4 | D5:1 G4 | B4:.5 D5 F5 D5 | G5 F5 E5 D5 | E5 D5 C5 E5 | C5:1 G4"""
    clarinet, accordion = score.part("flute", 71, 1.0), score.part("organ", 21, 0.7)
    tuba, kit = score.part("bass", 58, 1.0), score.part("drums", gain=0.9)
    score.melody(clarinet, tune)
    score.melody(clarinet, """A5:.5 G5 F5 A5 | C6:1 A5 | G5:.5 E5 C5 E5 | G5:2 | F5:.5 D5 B4 D5 | G5 A5 B5 G5 |
        C6 B5 C6 G5 | C6:1 -""", bar=8)
    score.melody(clarinet, tune + " | C6:.5 - C6:1", bar=16)
    score.comp(accordion, chords, [(0.5, 0.3), (1.5, 0.3)], "G4")
    score.bass(tuba, chords, [(0, 0.6, 0), (1, 0.6, 7)], "C2")
    score.drums(kit, 24, {KICK: "x.x.", CLOSED_HAT: "oxox", SNARE: ".o.o"})
    score.drums(kit, 1, {KICK: "x.x.", SNARE: "..x."}, first_bar=24)
    return score


def long_way_down_the_river():
    """A folk song in G that takes its time at the end."""
    score = Score(tempo=88)
    score.tempo_from_bar(6, 76)
    score.tempo_from_bar(7, 60)
    chords = "G D Em C G D C,D G"
    flute, guitar = score.part("flute", 73, 1.0), score.part("guitar", 24, 0.9)
    strings, bass = score.part("strings", 48, 0.5), score.part("bass", 32, 0.9)
    score.melody(flute, """D5:1 B4 G4 B4 | A4:2 F#4:1 A4 | B4:1.5 A4:.5 G4:1 E4 | G4:3 -:1 |
        D5 B4 D5 G5 | F#5:2 D5:1 A4 | C5 E5 D5 F#5 | G5:4""")
    score.arpeggio(guitar, chords, (0, 2, 3, 2, 4, 2, 3, 2), 0.5, "G3", ring=1.6)
    score.comp(strings, chords, [(0, 1.95), (2, 1.95)], "D4", velocity=0.4)
    score.bass(bass, chords, [(0, 1.8, 0), (2, 1.8, 7)], "G2")
    score.sing(0, "M: It's a long way down the river,")
    score.sing(2, "M: and the river doesn't mind.")
    score.sing(4, "F: Leave your worries on the landing,")
    score.sing(6, "D: let the water wind.")
    return score


def market_day_samba():
    """Round the fifths in E minor, with a faster last lap."""
    score = Score(tempo=112)
    score.tempo_from_bar(8, 128)
    chords = "Am7 D7 Gmaj7 Cmaj7 F#m7b5 B7 Em Em Am7 D7 Gmaj7,B7 Em"
    lead, piano = score.part("marimba", 12, 1.0), score.part("electric piano", 0, 0.6)
    bass, kit = score.part("bass", 32, 1.0), score.part("drums", gain=0.8)
    score.melody(lead, """-:.5 E5 C5 E5 A5:1 G5 | F#5:1.5 E5:.5 D5:2 | -:.5 D5 B4 D5 G5:1 F#5 | E5:1.5 D5:.5 B4:2 |
        -:.5 C5 A4 C5 F#5:1 E5 | D#5:1.5 C5:.5 B4:2 | E5:.5 G5 B5:1 G5:.5 E5 B4:1 | E5:2 -:2 |
        A5:.5 - A5 G5 E5:1 C5 | F#5 A5 F#5 D5 | B5 G5 F#5 D#5 | E5:1 -:3""")
    score.comp(piano, chords, [(0, 0.4), (1.5, 0.4), (2.5, 0.4), (3.5, 0.4)], "E4")
    score.bass(bass, chords, [(0, 1.4, 0), (1.5, 0.4, 7), (2, 1.4, 7), (3.5, 0.4, 0)])
    score.drums(kit, 11, {KICK: "x..xx..x", SHAKER: "xoxoxoxo", RIM: "x.x..x.x"})
    return score
