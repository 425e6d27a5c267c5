// model.js - reads the binary glTF that the program embeds: points, materials and one node a layer.
import { BufferAttribute, BufferGeometry, Color, Group, LineBasicMaterial, LineSegments, LinearSRGBColorSpace,
         DoubleSide, Mesh, MeshStandardMaterial } from "three";

const HEADER = 12; // bytes before the first chunk
const CHUNK_HEADER = 8;
const LINES = 1; // mode of a primitive

function chunks(bytes) {
  const view = new DataView(bytes.buffer);
  const length = view.getUint32(HEADER, true);
  const json = new TextDecoder().decode(bytes.subarray(HEADER + CHUNK_HEADER, HEADER + CHUNK_HEADER + length));
  return { json: JSON.parse(json), binary: HEADER + 2 * CHUNK_HEADER + length };
}

function materialOf(source, isLine) {
  const { baseColorFactor, roughnessFactor } = source.pbrMetallicRoughness;
  const [red, green, blue] = baseColorFactor;
  const color = new Color().setRGB(red, green, blue, LinearSRGBColorSpace);
  if (isLine) return new LineBasicMaterial({ color });
  return new MeshStandardMaterial({
    color, roughness: roughnessFactor, metalness: 0, flatShading: true, side: DoubleSide,
    // Surfaces step back a little behind their edges.
    polygonOffset: true, polygonOffsetFactor: 1, polygonOffsetUnits: 2,
  });
}

// { name, windows, layers: [{ name, colour, group }] } of the model's bytes.
export function readModel(bytes) {
  const { json, binary } = chunks(bytes);
  const materials = new Map();
  const layers = json.nodes.map((node) => {
    const group = new Group();
    for (const { attributes, material, mode } of json.meshes[node.mesh].primitives) {
      const accessor = json.accessors[attributes.POSITION];
      const place = binary + json.bufferViews[accessor.bufferView].byteOffset;
      const points = new Float32Array(bytes.buffer.slice(place, place + accessor.count * 12));
      const geometry = new BufferGeometry().setAttribute("position", new BufferAttribute(points, 3));
      const isLine = mode === LINES;
      if (!materials.has(material)) materials.set(material, materialOf(json.materials[material], isLine));
      const Kind = isLine ? LineSegments : Mesh;
      const object = new Kind(geometry, materials.get(material));
      object.castShadow = object.receiveShadow = !isLine;
      group.add(object);
    }
    return { name: node.name, colour: node.extras.colour, group };
  });
  return { ...json.asset.extras, layers };
}
