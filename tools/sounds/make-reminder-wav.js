#!/usr/bin/env node
// Writes data/reminder.wav: a short two-note chime (a rising major third,
// each note a bell-like partial series with an exponential decay), as plain
// 16-bit mono PCM at 22,050 Hz. Needs nothing beyond node itself; run it
// again to rebuild the file byte for byte.
'use strict';

const fs = require('fs');
const path = require('path');

const rate = 22050;
const seconds = 1.4;
const samples = Math.round(rate * seconds);

// Notes: start time (s), fundamental (Hz), loudness.
const notes = [
  { at: 0.0, freq: 659.25, gain: 0.55 },  // E5
  { at: 0.28, freq: 830.61, gain: 0.5 },  // G#5
];
// Partials of a small bell: ratio to the fundamental, weight, decay rate (1/s).
const partials = [
  { ratio: 1.0, weight: 1.0, decay: 3.2 },
  { ratio: 2.0, weight: 0.35, decay: 5.0 },
  { ratio: 3.01, weight: 0.12, decay: 7.5 },
  { ratio: 4.17, weight: 0.05, decay: 10.0 },
];

const pcm = Buffer.alloc(samples * 2);
for (let i = 0; i < samples; i++) {
  const t = i / rate;
  let v = 0;
  for (const n of notes) {
    const u = t - n.at;
    if (u < 0) continue;
    const attack = Math.min(1, u / 0.004);  // 4 ms rise, no click
    for (const p of partials) {
      v += n.gain * p.weight * attack * Math.exp(-p.decay * u) *
           Math.sin(2 * Math.PI * n.freq * p.ratio * u);
    }
  }
  const fade = Math.min(1, (seconds - t) / 0.05);  // silent at the end
  const s = Math.max(-1, Math.min(1, 0.6 * v * fade));
  pcm.writeInt16LE(Math.round(s * 32767), i * 2);
}

const header = Buffer.alloc(44);
header.write('RIFF', 0, 'ascii');
header.writeUInt32LE(36 + pcm.length, 4);
header.write('WAVE', 8, 'ascii');
header.write('fmt ', 12, 'ascii');
header.writeUInt32LE(16, 16);        // size of the fmt chunk
header.writeUInt16LE(1, 20);         // PCM
header.writeUInt16LE(1, 22);         // mono
header.writeUInt32LE(rate, 24);
header.writeUInt32LE(rate * 2, 28);  // bytes per second
header.writeUInt16LE(2, 32);         // bytes per frame
header.writeUInt16LE(16, 34);        // bits per sample
header.write('data', 36, 'ascii');
header.writeUInt32LE(pcm.length, 40);

const out = path.join(__dirname, '..', '..', 'data', 'reminder.wav');
fs.writeFileSync(out, Buffer.concat([header, pcm]));
console.log(`wrote ${out} (${44 + pcm.length} bytes)`);
