// model.js - reads the binary glTF that the program embeds: points, materials and one node a layer.
import { BufferAttribute, BufferGeometry, Color, Group, LineSegments, LinearSRGBColorSpace,
         DoubleSide, Mesh, MeshStandardMaterial } from "three";
import { EDGES, SURFACES, edgeMaterial, lineMaterial, steppingBack } from "./lines.js";

const HEADER = 12; // bytes before the first chunk
const CHUNK_HEADER = 8;
const LINES = 1; // mode of a primitive
const FLOAT = 4; // bytes

function chunks(bytes) {
  const view = new DataView(bytes.buffer);
  const length = view.getUint32(HEADER, true);
  const json = new TextDecoder().decode(bytes.subarray(HEADER + CHUNK_HEADER, HEADER + CHUNK_HEADER + length));
  return { json: JSON.parse(json), binary: HEADER + 2 * CHUNK_HEADER + length };
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

// The floats of an accessor, so many a vertex.
function attributeOf({ accessors, bufferViews }, bytes, binary, index, size) {
  const { bufferView, count } = accessors[index];
  const place = binary + bufferViews[bufferView].byteOffset;
  return new BufferAttribute(new Float32Array(bytes.buffer.slice(place, place + count * size * FLOAT)), size);
}

// { name, windows, layers: [{ name, colour, group }] } of the model's bytes.
export function readModel(bytes) {
  const { json, binary } = chunks(bytes);
  const materials = new Map();
  const layers = json.nodes.map((node) => {
    const group = new Group();
    for (const { attributes, material, mode } of json.meshes[node.mesh].primitives) {
      const geometry = new BufferGeometry().setAttribute("position", attributeOf(json, bytes, binary, attributes.POSITION, 3));
      const isNumbered = "_SURFACE" in attributes;
      if (isNumbered) geometry.setAttribute("surface", attributeOf(json, bytes, binary, attributes._SURFACE, 1));
      const isLine = mode === LINES;
      if (!isLine) geometry.computeVertexNormals();
      if (!materials.has(material)) materials.set(material, materialOf(json.materials[material], isLine, isNumbered));
      const Kind = isLine ? LineSegments : Mesh;
      const object = new Kind(geometry, materials.get(material));
      object.castShadow = object.receiveShadow = !isLine;
      if (isNumbered) object.layers.enable(isLine ? EDGES : SURFACES);
      if (isNumbered && isLine) object.renderOrder = 1; // edges have no depth of their own: after all surfaces
      group.add(object);
    }
    return { name: node.name, colour: node.extras.colour, group };
  });
  return { ...json.asset.extras, layers };
}
