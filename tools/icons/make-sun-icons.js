#!/usr/bin/env node
// Draws the three sun icons of the main window and the tray: sun.ico (the
// normal sun), sun1.ico (a red disc: a reminder is due today) and sun2.ico
// (light orange: a reminder is near). Each .ico holds 16, 32 and 48 pixel
// images as 32-bit BMPs. No packages needed: node tools/icons/make-sun-icons.js
'use strict';
const fs = require('fs');
const path = require('path');

const outDir = path.resolve(__dirname, '..', '..', 'data');

// A sun: a disc with eight rays, antialiased by 4x4 supersampling.
function drawSun(size, disc, ray) {
  const px = new Float32Array(size * size * 4);
  const c = size / 2, rDisc = size * 0.27, rIn = size * 0.34, rOut = size * 0.48;
  const rayHalfWidth = size * 0.055;
  const S = 4;
  for (let y = 0; y < size; y++) {
    for (let x = 0; x < size; x++) {
      let cover = [0, 0, 0, 0];  // r, g, b, a accumulated
      for (let sy = 0; sy < S; sy++) {
        for (let sx = 0; sx < S; sx++) {
          const dx = x + (sx + 0.5) / S - c, dy = y + (sy + 0.5) / S - c;
          const r = Math.hypot(dx, dy);
          let colour = null;
          if (r <= rDisc) {
            colour = disc;
          } else if (r >= rIn && r <= rOut) {
            const a = Math.atan2(dy, dx);
            const nearest = Math.round(a / (Math.PI / 4)) * (Math.PI / 4);
            const off = Math.abs(Math.sin(a - nearest)) * r;
            if (off <= rayHalfWidth) colour = ray;
          }
          if (colour) {
            cover[0] += colour[0]; cover[1] += colour[1]; cover[2] += colour[2]; cover[3] += 255;
          }
        }
      }
      const n = S * S, i = (y * size + x) * 4;
      const alpha = cover[3] / n;
      px[i] = alpha ? cover[0] / (cover[3] / 255) : 0;
      px[i + 1] = alpha ? cover[1] / (cover[3] / 255) : 0;
      px[i + 2] = alpha ? cover[2] / (cover[3] / 255) : 0;
      px[i + 3] = alpha;
    }
  }
  return px;
}

// One BMP image of an .ico: header, bottom-up BGRA rows, and the AND mask.
function bmpEntry(size, px) {
  const header = Buffer.alloc(40);
  header.writeUInt32LE(40, 0);
  header.writeInt32LE(size, 4);
  header.writeInt32LE(size * 2, 8);  // colour and mask together
  header.writeUInt16LE(1, 12);
  header.writeUInt16LE(32, 14);
  const pixels = Buffer.alloc(size * size * 4);
  for (let y = 0; y < size; y++) {
    for (let x = 0; x < size; x++) {
      const src = (y * size + x) * 4, dst = ((size - 1 - y) * size + x) * 4;
      pixels[dst] = Math.round(px[src + 2]);
      pixels[dst + 1] = Math.round(px[src + 1]);
      pixels[dst + 2] = Math.round(px[src]);
      pixels[dst + 3] = Math.round(px[src + 3]);
    }
  }
  const maskRow = Math.ceil(size / 32) * 4;
  const mask = Buffer.alloc(maskRow * size);  // all zero: alpha decides
  return Buffer.concat([header, pixels, mask]);
}

function writeIco(file, disc, ray) {
  const sizes = [16, 32, 48];
  const images = sizes.map((s) => bmpEntry(s, drawSun(s, disc, ray)));
  const dir = Buffer.alloc(6 + 16 * sizes.length);
  dir.writeUInt16LE(0, 0);
  dir.writeUInt16LE(1, 2);
  dir.writeUInt16LE(sizes.length, 4);
  let offset = dir.length;
  sizes.forEach((s, k) => {
    const e = 6 + 16 * k;
    dir.writeUInt8(s, e);
    dir.writeUInt8(s, e + 1);
    dir.writeUInt16LE(1, e + 4);
    dir.writeUInt16LE(32, e + 6);
    dir.writeUInt32LE(images[k].length, e + 8);
    dir.writeUInt32LE(offset, e + 12);
    offset += images[k].length;
  });
  fs.writeFileSync(path.join(outDir, file), Buffer.concat([dir, ...images]));
  console.log('wrote', path.join('data', file));
}

writeIco('sun.ico', [255, 204, 0], [255, 153, 0]);
writeIco('sun1.ico', [220, 30, 30], [255, 153, 0]);
writeIco('sun2.ico', [255, 180, 120], [255, 153, 0]);
