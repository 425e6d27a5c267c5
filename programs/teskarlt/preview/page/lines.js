// lines.js - shows an edge of a surface where the surface itself is seen beside it, and other lines where they lie on what
// is seen. Depths alone cannot tell of edges: a wall that ends in the plane of a roof has its top edge as near as the roof.
import { AlwaysDepth, DoubleSide, NearestFilter, ShaderMaterial, Vector2, WebGLRenderTarget } from "three";

// The camera's layers of the surfaces and of their edges.
export const SURFACES = 1;
export const EDGES = 2;

// In pixels: more than the depth of a surface changes from the middle of a pixel to its rim.
const STEP_BACK = 8;
const STEP_FORWARD = 2;
const STEEP_STEP_BACK = 2;

// How far a vertex is moved away from the camera, as a share of its distance, or in a parallel view as a length: the
// steep surfaces step behind the others, so that no wall is seen through the roof whose plane it ends in.
const BACK = `
  uniform float back;
  #ifdef STEEP_ONLY
    #define BACK (abs(normal.y) < 0.5 ? back : 0.0)
  #else
    #define BACK back
  #endif
  vec4 movedBack(vec3 place, float by) {
    return isOrthographic ? vec4(place.xy, place.z - by, 1.0) : vec4(place * (1.0 + by), 1.0);
  }
`;

const VERTEX = `${BACK}
  attribute float surface;
  flat varying float number;
  void main() {
    number = surface;
    vec4 place = modelViewMatrix * vec4(position, 1.0);
    gl_Position = projectionMatrix * movedBack(place.xyz, BACK);
  }`;

// A number takes up the three bytes of a colour.
const numberMaterial = (defines, back) => new ShaderMaterial({
  vertexShader: VERTEX,
  fragmentShader: `
    flat varying float number;
    void main() {
      gl_FragColor = vec4(mod(number, 256.0), mod(floor(number / 256.0), 256.0), floor(number / 65536.0), 255.0) / 255.0;
    }`,
  side: DoubleSide,
  defines,
  uniforms: { back },
});

// Uniforms that materials share.
const seen = { value: null }; // texture: the number of the surface that is seen in each pixel, 0 where there is none
const forward = { value: 0 };
const steepBack = { value: 0 };
const paleness = { value: 0 };

// How much paler lines are drawn beside all surfaces than the drawing says, 0 to 1: on a dark ground they have to be.
export function paleLines(share) {
  paleness.value = share;
}

// Lets the steep surfaces of a material step back.
export function steppingBack(material) {
  return Object.assign(material, {
    defines: { ...material.defines, STEEP_ONLY: "" },
    onBeforeCompile(shader) {
      shader.uniforms.back = steepBack;
      shader.vertexShader = BACK + shader.vertexShader.replace(
        "#include <project_vertex>",
        `#include <project_vertex>
        gl_Position = projectionMatrix * movedBack(mvPosition.xyz, BACK);`);
    },
  });
}

export function lineMaterial(color) {
  return new ShaderMaterial({
    vertexShader: VERTEX,
    fragmentShader: `
      uniform sampler2D seen;
      uniform vec3 color;
      uniform float paleness;
      void main() {
        bool isOnGround = texelFetch(seen, ivec2(gl_FragCoord.xy), 0).rgb == vec3(0.0);
        gl_FragColor = vec4(mix(color, vec3(1.0), isOnGround ? paleness : 0.0), 1.0);
        #include <colorspace_fragment>
      }`,
    uniforms: { back: forward, color: { value: color }, paleness, seen },
  });
}

export function edgeMaterial(color) {
  return new ShaderMaterial({
    vertexShader: VERTEX,
    fragmentShader: `
      uniform sampler2D seen;
      uniform vec3 color;
      flat varying float number;
      void main() {
        int own = 0;
        for (int i = 0; i < 9; ++i) {
          vec3 bytes = texelFetch(seen, ivec2(gl_FragCoord.xy) + ivec2(i % 3 - 1, i / 3 - 1), 0).rgb * 255.0;
          if (dot(floor(bytes + 0.5), vec3(1.0, 256.0, 65536.0)) == number) ++own;
        }
        if (own < 2) discard; // a single pixel is one where two depths are the same
        gl_FragColor = vec4(color, 1.0);
        #include <colorspace_fragment>
      }`,
    uniforms: { back: { value: 0 }, color: { value: color }, seen },
    depthFunc: AlwaysDepth,
  });
}

export class SeenSurfaces {
  constructor(renderer) {
    this.renderer = renderer;
    this.target = new WebGLRenderTarget(1, 1, { minFilter: NearestFilter, magFilter: NearestFilter });
    this.bytes = new Uint8Array(4);
    this.edgesBack = { value: 0 };
    this.surfaces = numberMaterial({ STEEP_ONLY: "" }, steepBack);
    this.edges = numberMaterial({}, this.edgesBack);
    seen.value = this.target.texture;
  }

  // To be called before each picture of the scene: edges look there for their surfaces.
  render(scene, camera) {
    const { x, y } = this.renderer.getDrawingBufferSize(new Vector2());
    const pixel = 2 / (camera.projectionMatrix.elements[5] * y); // as `back` counts
    forward.value = -STEP_FORWARD * pixel;
    steepBack.value = STEEP_STEP_BACK * pixel;
    this.edgesBack.value = STEP_BACK * pixel;
    this.target.setSize(x, y);
    this.renderer.setRenderTarget(this.target);
    this.renderLayer(scene, camera, SURFACES, this.surfaces);
    // A surface narrower than a pixel is seen by its edges, where nothing else is near.
    this.renderer.autoClear = false;
    this.renderLayer(scene, camera, EDGES, this.edges);
    this.renderer.autoClear = true;
    this.renderer.setRenderTarget(null);
    camera.layers.set(0);
  }

  // The number of the surface that was seen last in a pixel, counted from the lower left; 0 where there is none.
  numberAt(x, y) {
    this.renderer.readRenderTargetPixels(this.target, x, y, 1, 1, this.bytes);
    const [red, green, blue] = this.bytes;
    return red + green * 256 + blue * 65536;
  }

  renderLayer(scene, camera, layer, material) {
    camera.layers.set(layer);
    scene.overrideMaterial = material;
    this.renderer.render(scene, camera);
    scene.overrideMaterial = null;
  }
}
