// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// How a page looks. The grounds are neutral greys, since colours are judged on them.

#pragma once

#include <string_view>

namespace vyr_tool {

inline constexpr std::string_view k_page_style = R"(:root {
  color-scheme: light dark;
  --ground: #f2f2f2; --card: #ffffff; --text: #1a1a1a; --faint: #595959; --rule: #d0d0d0;
  --accent: #0b57a4; --pass: #17652f; --warn: #7a4b00; --fail: #b00020;
}
@media (prefers-color-scheme: dark) {
  :root {
    --ground: #161616; --card: #222222; --text: #ececec; --faint: #ababab; --rule: #444444;
    --accent: #8ec1ff; --pass: #7fd79a; --warn: #f0bf5c; --fail: #ff9a96;
  }
}
* { box-sizing: border-box; }
body { margin: 0; background: var(--ground); color: var(--text); font: 1rem/1.5 system-ui, sans-serif; }
header, .columns { max-width: 92rem; margin: 0 auto; padding: 0 1.25rem; }
header p { margin: 0 0 1rem; color: var(--faint); }
h1, h2, h3, h4, h5, h6, p, dt, dd, summary, li { overflow-wrap: anywhere; }
h1 { margin: 1.25rem 0 0; font-size: 1.75rem; line-height: 1.25; }
h2 { margin: 2rem 0 .75rem; font-size: 1.375rem; border-bottom: 1px solid var(--rule); }
h3 { margin: 1.5rem 0 .5rem; font-size: 1.125rem; }
h4, h5, h6 { margin: .75rem 0 .25rem; font-size: 1rem; }
.kind { color: var(--faint); font-weight: 400; }
p { margin: .25rem 0; }
a, summary { color: var(--accent); }
summary { cursor: pointer; }
:focus-visible { outline: 3px solid var(--accent); outline-offset: 2px; }
main:focus { outline: none; }
:target { scroll-margin-top: 1rem; }
article:target { outline: 3px solid var(--accent); }
.skip { position: absolute; left: -99rem; }
.skip:focus { left: 1rem; top: .5rem; padding: .5rem 1rem; background: var(--card); }
.note, .conditions, .origin, .count, .label, dt, caption, .fields dt { color: var(--faint); }
.note { max-width: 48rem; font-size: .9375rem; }
nav ul { margin: 0; padding: 0 0 0 1rem; list-style: none; }
nav > ul { padding: 0; }
nav li { margin: .25rem 0; }
nav h2 { margin-top: 1rem; font-size: 1rem; }
.index ul { columns: 14rem; padding: 0; list-style: none; }
.index { margin: .5rem 0 1rem; }
dl { margin: .5rem 0; }
dd { margin: 0; white-space: pre-line; }
.fields { display: grid; grid-template-columns: fit-content(40%) 1fr; gap: .125rem 1rem; font-size: .9375rem; }
.fields dt { grid-column: 1; }
.fields dd { grid-column: 2; }
.values > dt { margin-top: .625rem; font-weight: 600; font-size: .9375rem; }
.values > dd { white-space: normal; }
.values .values { margin-left: .75rem; padding-left: .75rem; border-left: 2px solid var(--rule); }
.channels { display: flex; flex-wrap: wrap; gap: 0 1rem; font-variant-numeric: tabular-nums; }
.conditions, .origin { font-size: .875rem; }
.cards { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(100%, 20rem), 1fr)); gap: 1rem; align-items: start; }
.color, .sample { min-width: 0; }
.color { padding: 1rem; background: var(--card); border: 1px solid var(--rule); border-radius: .375rem; }
.cards > .color { content-visibility: auto; contain-intrinsic-size: auto 20rem auto 22rem; }
.swatch { display: block; width: 100%; height: 4.5rem; border: 1px solid var(--rule); }
.swatch.none { display: grid; place-items: center; height: auto; min-height: 2.25rem; margin: 0; border-style: dashed; color: var(--faint); font-size: .875rem; }
.curve { display: block; width: 100%; max-width: 30rem; height: auto; margin: .375rem 0; }
.curve text { fill: var(--faint); font-size: 11px; font-family: inherit; }
.curve path { fill: none; stroke: var(--faint); }
.curve .grid path { stroke: var(--rule); }
.curve .line { fill: none; stroke: var(--accent); stroke-width: 2; stroke-linejoin: round; }
.curve circle.line { fill: var(--accent); }
.scroll { overflow-x: auto; margin: .75rem 0; }
table { border-collapse: collapse; overflow-wrap: normal; font-size: .9375rem; font-variant-numeric: tabular-nums; }
caption { text-align: left; font-weight: 600; font-size: .875rem; }
th, td { padding: .25rem .75rem .25rem 0; text-align: left; vertical-align: top; border-bottom: 1px solid var(--rule); }
thead th { color: var(--faint); font-weight: 600; font-size: .875rem; }
tbody th { font-weight: 400; }
td { white-space: pre-line; }
.points { font-size: .875rem; }
.points > div { max-height: 16rem; overflow: auto; }
.verdict { font-weight: 600; }
.pass { color: var(--pass); }
.warn { color: var(--warn); }
.fail { color: var(--fail); }
.open { color: var(--faint); font-weight: 400; }
.block { margin: .5rem 0; }
.block > .color { max-width: 30rem; }
.record > section { margin-top: 1.5rem; }
@media (min-width: 64rem) {
  .columns { display: grid; grid-template-columns: 15rem minmax(0, 1fr); gap: 2.5rem; }
  nav { position: sticky; top: 0; align-self: start; max-height: 100vh; overflow: auto; padding-bottom: 1rem; }
}
@media (max-width: 30rem) {
  .fields { display: block; }
  .fields dt { margin-top: .25rem; }
}
@media print {
  :root {
    color-scheme: light;
    --ground: #ffffff; --card: #ffffff; --text: #000000; --faint: #444444; --rule: #b0b0b0;
    --accent: #0b57a4; --pass: #17652f; --warn: #7a4b00; --fail: #b00020;
  }
  :root { font-size: 9pt; }
  nav, .skip, .index, .points { display: none; }
  header, .columns { max-width: none; padding: 0; }
  .cards { display: block; columns: 2; column-gap: 1rem; }
  .cards > * { margin-bottom: 1rem; }
  .cards > .color { content-visibility: visible; }
  .values > dd, .swatch, tr { break-inside: avoid; }
  .swatch { break-after: avoid; }
  .color { box-decoration-break: clone; -webkit-box-decoration-break: clone; }
  h1, h2, h3, h4, h5, h6, caption, dt { break-after: avoid; }
  .swatch { height: 3rem; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
  .scroll { overflow: visible; }
}
)";

}  // namespace vyr_tool
