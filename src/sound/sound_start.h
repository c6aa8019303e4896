#pragma once
// The two sound fronts of the editor and their place in the application's start and
// exit. The frame calls StartSound after reading "System.ini" and before building the
// main window, and EndSound at exit before it removes the keyboard hooks.

#include "sound/music.h"
#include "sound/sound.h"

extern cMusic g_Music;
extern cSound g_Sound;
// The editor's one music slot: the rows a form writes its file into and plays.
extern MUSIC_ROW g_FreeOggRow;
extern MUSIC_ROW g_FreeMidRow;

// The audio device and the synthesiser; the music front on one channel and one slot
// over the two rows, `bMidiDirectMusic` being System.ini's "Midi_DirectMusic"; the
// wave device with its five entries. With no device or no soundfont the editor runs on
// in silence, which the report log says once.
void StartSound(int bMidiDirectMusic);
// The same fronts over a mixer that the caller pulls (SoundMixer()): no audio device.
void StartOfflineSound(int bMidiDirectMusic);
// The wave device closed, the music stopped and released, the device and the
// synthesiser closed, in this order.
void EndSound();
