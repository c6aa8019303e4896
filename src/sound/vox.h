#pragma once
// The ogg player: a small library of player objects, each playing one Ogg Vorbis file
// into the mixer. The music front calls the operations through the slots below, in
// this order, as it finds them in the library.

#include <cstdint>

class cVox {
 public:
  virtual std::uint8_t Load(const char* path) = 0;  // 0: a stored path; 0 is failure
  virtual void Play() = 0;                          // 1: from where it stands
  virtual void Stop() = 0;                          // 2: and back to the start
  virtual void Close() = 0;                         // 3: the file closed, volume and loops back to their defaults
  virtual void SetLoop(int count) = 0;              // 4: plays again `count` times; 0x7FFFFFFF without end
  virtual void Pause() = 0;                         // 5
  virtual void SetVolume(float volume) = 0;         // 6: 0 to 1
  virtual float GetVolume() = 0;                    // 7
  virtual int IsPlaying() = 0;                      // 8
  virtual void Delete() = 0;                        // 9

 protected:
  virtual ~cVox() = default;
};

using CREATE_VOX = cVox* (*)();

// Null on failure.
cVox* CreateVox();

// The library's CreateVox entry, or null when the library is missing. SetVoxLibrary
// replaces what is found (null: the library is missing).
CREATE_VOX FindCreateVox();
void SetVoxLibrary(CREATE_VOX createVox);

constexpr int kVoxLoopForever = 0x7FFFFFFF;
