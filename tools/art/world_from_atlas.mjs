// Turns Natural Earth's country shapes, as the npm package world-atlas ships them
// (countries-110m.json, TopoJSON, public domain data), into data/art/world_countries.tsv:
// one line per ring, "country<TAB>lon,lat lon,lat ...", degrees rounded to a tenth.
// Run once when the source changes:
//   npm pack world-atlas@2.0.2 && tar xzf world-atlas-2.0.2.tgz
//   node tools/art/world_from_atlas.mjs package/countries-110m.json data/art/world_countries.tsv
import { readFileSync, writeFileSync } from "node:fs";

const [input, output] = process.argv.slice(2);
const topology = JSON.parse(readFileSync(input, "utf8"));
const { scale, translate } = topology.transform;

// arcs are delta-encoded and quantized
const arcs = topology.arcs.map((arc) => {
  let x = 0, y = 0;
  return arc.map(([dx, dy]) => {
    x += dx;
    y += dy;
    return [x * scale[0] + translate[0], y * scale[1] + translate[1]];
  });
});

function ring(indices) {
  const points = [];
  for (const index of indices) {
    const arc = index < 0 ? arcs[~index].slice().reverse() : arcs[index];
    points.push(...(points.length ? arc.slice(1) : arc));
  }
  return points;
}

const lines = [
  "# Country shapes of Natural Earth (public domain), 1:110m, from the npm package world-atlas 2.0.2,",
  "# made by tools/art/world_from_atlas.mjs: country, then the ring as lon,lat pairs in degrees.",
];
for (const geometry of topology.objects.countries.geometries) {
  const name = geometry.properties.name;
  const polygons = geometry.type === "Polygon" ? [geometry.arcs] : geometry.type === "MultiPolygon" ? geometry.arcs : [];
  for (const polygon of polygons) {
    for (const indices of polygon) {
      let previous = "";
      const cells = [];
      for (const [lon, lat] of ring(indices)) {
        const cell = `${Math.round(lon * 10) / 10},${Math.round(lat * 10) / 10}`;
        if (cell !== previous) cells.push(cell);
        previous = cell;
      }
      if (cells.length >= 4) lines.push(`${name}\t${cells.join(" ")}`);
    }
  }
}
writeFileSync(output, lines.join("\n") + "\n");
console.log(`${lines.length - 2} rings written to ${output}`);
