#!/usr/bin/env node
// Writes data/ummalqur.dat, the Umm al-Qura calendar for the Islamic years
// 1356 to 1500: one line per year, "year,JD of 1 Muharram,twelve digits",
// each digit 1 for a month of 30 days and 0 for one of 29.
//
// Source: the published Umm al-Qura table as carried by the npm package
// @tabby_ai/hijri-converter (MIT). Every month start is cross-checked against
// moment-hijri, which carries the same table independently, and, for the
// years 1420 to 1450 where ICU follows the published table, against node's
// Intl calendar "islamic-umalqura". moment-hijri differs in one month only:
// it starts Jumada 'l-Akhira 1427 a day early (JD 2453913); the published
// table and ICU both have JD 2453914. Any other difference stops the script.
//
// The published table has one month of 28 days, Sha'ban 1364 (Rajab 1364 has
// 30). A line of 0/1 digits cannot hold a 28-day month, so Rajab and Sha'ban
// 1364 are written as 29 + 29: the two months together keep their 58 days, and
// every year start stays exact. Within those two months the dates are one day
// apart from the published table from 30 Rajab to 28 Sha'ban.
//
// Usage: npm ci && node generate.js [output file]

'use strict';

const fs = require('fs');
const path = require('path');
const { hijriToGregorian } = require('@tabby_ai/hijri-converter');
const moment = require('moment-hijri');

const FIRST_YEAR = 1356;
const LAST_YEAR = 1500;

// Julian Day number of a civil Gregorian date.
function gregorianToJD(y, m, d) {
  return Math.round(Date.UTC(y, m - 1, d) / 86400000) + 2440588;
}

function monthStart(year, month) {
  const g = hijriToGregorian({ year, month, day: 1 });
  return gregorianToJD(g.year, g.month, g.day);
}

// Month starts where moment-hijri is known to differ from the published table.
const KNOWN_MOMENT_DIFFERENCES = new Map([['1427/6', 2453913]]);

const intlFormat = new Intl.DateTimeFormat('en-u-ca-islamic-umalqura', {
  timeZone: 'UTC',
  year: 'numeric',
  month: 'numeric',
  day: 'numeric',
});

// The Islamic date ICU gives for a JD.
function intlDate(jd) {
  const parts = {};
  for (const p of intlFormat.formatToParts(new Date((jd - 2440588) * 86400000)))
    parts[p.type] = p.value;
  return { year: parseInt(parts.relatedYear || parts.year, 10), month: +parts.month, day: +parts.day };
}

function monthStartMoment(year, month) {
  const m = moment.utc(`${year}/${month}/1`, 'iYYYY/iM/iD');
  if (!m.isValid()) throw new Error(`moment-hijri cannot read ${year}/${month}/1`);
  return gregorianToJD(m.year(), m.month() + 1, m.date());
}

// The JD after the last day of 1500: 30 Dhu 'l-Hijja 1500 plus one.
function endOfTable() {
  const g = hijriToGregorian({ year: LAST_YEAR, month: 12, day: 30 });
  return gregorianToJD(g.year, g.month, g.day) + 1;
}

function main() {
  const out = process.argv[2] || path.join(__dirname, '..', '..', 'data', 'ummalqur.dat');
  const starts = [];
  for (let y = FIRST_YEAR; y <= LAST_YEAR; ++y)
    for (let m = 1; m <= 12; ++m) {
      const jd = monthStart(y, m);
      const other = monthStartMoment(y, m);
      if (jd !== other && KNOWN_MOMENT_DIFFERENCES.get(`${y}/${m}`) !== other)
        throw new Error(`${y}/${m}: hijri-converter gives JD ${jd}, moment-hijri ${other}`);
      if (y >= 1420 && y <= 1450) {
        const icu = intlDate(jd);
        if (icu.year !== y || icu.month !== m || icu.day !== 1)
          throw new Error(`${y}/${m}: JD ${jd} is ${icu.day}/${icu.month}/${icu.year} in ICU`);
      }
      starts.push(jd);
    }
  starts.push(endOfTable());

  const lines = [];
  let mended = 0;
  for (let y = FIRST_YEAR; y <= LAST_YEAR; ++y) {
    const base = (y - FIRST_YEAR) * 12;
    const lengths = [];
    for (let m = 0; m < 12; ++m) lengths.push(starts[base + m + 1] - starts[base + m]);
    // A 28-day month is joined with the month before it, as 29 + 29.
    for (let m = 0; m < 12; ++m) {
      if (lengths[m] === 28 && m > 0 && lengths[m - 1] === 30) {
        lengths[m - 1] = 29;
        lengths[m] = 29;
        ++mended;
      }
    }
    for (const n of lengths)
      if (n !== 29 && n !== 30) throw new Error(`${y}: a month of ${n} days`);
    const digits = lengths.map((n) => (n === 30 ? '1' : '0')).join('');
    lines.push(`${y},${starts[base]},${digits}`);
  }
  if (mended !== 1) throw new Error(`expected one 28-day month, found ${mended}`);
  fs.writeFileSync(out, lines.join('\r\n') + '\r\n');
  console.log(`${lines.length} years written to ${out}`);
}

main();
