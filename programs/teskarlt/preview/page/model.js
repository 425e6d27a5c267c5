// model.js - reads the binary glTF that the program embeds: points, materials, windows, and a node a layer.
import { BufferAttribute, BufferGeometry, Color, Group, LineSegments, LinearSRGBColorSpace,
         DoubleSide, Mesh, MeshStandardMaterial } from "three";
import { EDGES, SURFACES, edgeMaterial, lineMaterial, steppingBack } from "./lines.js";

const HEADER = 12; // bytes before the first chunk
const CHUNK_HEADER = 8;
const LINES = 1; // mode of a primitive
const FLOAT = 4; // bytes

class Source {
  constructor(bytes) {
    const length = new DataView(bytes.buffer).getUint32(HEADER, true);
    const json = bytes.subarray(HEADER + CHUNK_HEADER, HEADER + CHUNK_HEADER + length);
    this.json = JSON.parse(new TextDecoder().decode(json));
    this.buffer = bytes.buffer;
    this.binary = HEADER + 2 * CHUNK_HEADER + length;
  }

  // The numbers of an accessor, so many a vertex.
  floats(accessor, size) {
    const { bufferView, count } = this.json.accessors[accessor];
    const place = this.binary + this.json.bufferViews[bufferView].byteOffset;
    return new Float32Array(this.buffer.slice(place, place + count * size * FLOAT));
  }
}

function materialOf(source, isLine, isNumbered) {
  const { baseColorFactor, roughnessFactor } = source.pbrMetallicRoughness;
  const [red, green, blue] = baseColorFactor;
  const color = new Color().setRGB(red, green, blue, LinearSRGBColorSpace);
  if (isLine) return isNumbered ? edgeMaterial(color) : lineMaterial(color);
  return steppingBack(new MeshStandardMaterial({
    color, roughness: roughnessFactor, metalness: 0, flatShading: true, side: DoubleSide,
  }));
}

function joined(arrays) {
  const all = new Float32Array(arrays.reduce((sum, { length }) => sum + length, 0));
  let place = 0;
  for (const array of arrays) {
    all.set(array, place);
    place += array.length;
  }
  return all;
}

// What lies on a layer, of the drawing and of all its windows: one object a material is drawn fast.
class Layer {
  constructor({ name, extras }) {
    this.name = name;
    this.colour = extras.colour;
    this.parts = new Map(); // by material
  }

  add({ material, mode }, points, numbers) {
    if (!this.parts.has(material)) this.parts.set(material, { isLine: mode === LINES, points: [], numbers: [] });
    const part = this.parts.get(material);
    part.points.push(points);
    if (numbers) part.numbers.push(numbers);
  }

  // The layer with its objects in a group.
  shown(materials) {
    const group = new Group();
    for (const [material, { isLine, points, numbers }] of this.parts) {
      const geometry = new BufferGeometry().setAttribute("position", new BufferAttribute(joined(points), 3));
      const isNumbered = numbers.length > 0;
      if (isNumbered) geometry.setAttribute("surface", new BufferAttribute(joined(numbers), 1));
      if (!isLine) geometry.computeVertexNormals();
      const Kind = isLine ? LineSegments : Mesh;
      const object = new Kind(geometry, materialOf(materials[material], isLine, isNumbered));
      object.castShadow = object.receiveShadow = !isLine;
      if (isNumbered) object.layers.enable(isLine ? EDGES : SURFACES);
      if (isNumbered && isLine) object.renderOrder = 1; // edges have no depth of their own: after all surfaces
      group.add(object);
    }
    return { name: this.name, colour: this.colour, group };
  }
}

// { name, windows, layers: [{ name, colour, group }], windowOf } of the model's bytes; windowOf gives the window that
// the surface of a number belongs to, if it does.
export function readModel(bytes) {
  const source = new Source(bytes);
  const { asset, nodes, meshes, materials, scenes } = source.json;
  const layers = new Map();
  const windowOf = new Map();
  const add = (node, shown) => {
    if (!layers.has(node.name)) layers.set(node.name, new Layer(node));
    for (const primitive of meshes[node.mesh].primitives) {
      const { POSITION, _SURFACE } = primitive.attributes;
      const numbers = _SURFACE === undefined ? undefined : source.floats(_SURFACE, 1);
      layers.get(node.name).add(primitive, source.floats(POSITION, 3), numbers);
      if (shown) numbers?.forEach((number) => windowOf.set(number, shown));
    }
  };
  const { name, windows } = asset.extras;
  for (const index of scenes[0].nodes)
    if ("mesh" in nodes[index]) add(nodes[index]);
  for (const shown of windows)
    for (const child of nodes[shown.node].children) add(nodes[child], shown);
  return { name, windows, layers: [...layers.values()].map((layer) => layer.shown(materials)), windowOf };
}
