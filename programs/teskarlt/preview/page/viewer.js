// viewer.js - draws the model in its light, and tells what of it is clicked.
import { Box3, DirectionalLight, HemisphereLight, Mesh, PCFShadowMap, PlaneGeometry, Scene, ShadowMaterial, Vector3,
         WebGLRenderer } from "three";
import { one } from "./elements.js";
import { SeenSurfaces, paleLines } from "./lines.js";
import { DIRECTIONS, Viewpoint } from "./viewpoint.js";

const NARROW = "(max-width: 640px)"; // as in style.css
const DARK = "(prefers-color-scheme: dark)";
const PALE = 0.55; // lines on the dark page
const KEY_STEP = 0.09; // radians
const KEY_ZOOM = 1.12;
const CLICK = 4; // pixels that a mouse may move in one

function addLights(scene, { center, radius }) {
  const sun = new DirectionalLight(0xfff4e6, 2.3);
  sun.position.copy(center).add(new Vector3(-0.45, 1.1, 0.8).multiplyScalar(radius * 2));
  sun.target.position.copy(center);
  sun.castShadow = true;
  sun.shadow.mapSize.set(2048, 2048);
  sun.shadow.radius = 4;
  sun.shadow.bias = -0.002;
  Object.assign(sun.shadow.camera, { left: -radius, right: radius, bottom: -radius, top: radius, near: 0, far: radius * 6 });
  const ground = new Mesh(new PlaneGeometry(radius * 20, radius * 20), new ShadowMaterial({ opacity: 0.16 }));
  ground.rotation.x = -Math.PI / 2;
  ground.position.y = -radius / 1000;
  ground.receiveShadow = true;
  scene.add(new HemisphereLight(0xf3f8ff, 0xcfc8bb, 1.9), sun, sun.target, ground);
}

export class Viewer {
  // tags are placed with each picture; onTouch is called when the drawing is turned by hand, onPick with the window
  // that is clicked, or undefined.
  constructor(model, tags, { onTouch, onPick }) {
    this.canvas = one("#view");
    this.tags = tags;
    this.renderer = new WebGLRenderer({ canvas: this.canvas, antialias: true, alpha: true });
    this.renderer.setPixelRatio(Math.min(devicePixelRatio, 2));
    this.renderer.shadowMap.enabled = true;
    this.renderer.shadowMap.type = PCFShadowMap;
    this.seen = new SeenSurfaces(this.renderer);
    this.scene = new Scene();
    for (const { group } of model.layers) this.scene.add(group);
    const box = new Box3().setFromObject(this.scene);
    this.viewpoint = new Viewpoint(this.canvas, box, { onMove: () => this.draw(), onTouch });
    addLights(this.scene, this.viewpoint.sphere);
    addEventListener("resize", () => this.resize());
    this.canvas.addEventListener("keydown", (event) => this.onKey(event));
    this.listenForClicks((number) => onPick(model.windowOf.get(number)));
    this.suitGround();
    matchMedia(DARK).addEventListener("change", () => this.suitGround());
    this.resize();
  }

  suitGround() {
    paleLines(matchMedia(DARK).matches ? PALE : 0);
    this.draw();
  }

  resize() {
    const { innerWidth: width, innerHeight: height } = window;
    const isWide = !matchMedia(NARROW).matches;
    this.renderer.setSize(width, height, false);
    this.viewpoint.resize(width, height, isWide ? one("aside").offsetWidth / 2 : 0, isWide ? 16 : 24);
    this.draw();
  }

  // Draws once in the next frame, however often it is asked for.
  draw() {
    this.frame ??= requestAnimationFrame((now) => {
      this.frame = undefined;
      this.viewpoint.fly(now);
      const camera = this.viewpoint.camera();
      this.seen.render(this.scene, camera);
      this.renderer.render(this.scene, camera);
      this.tags.place(camera, window.innerWidth, window.innerHeight);
    });
  }

  // Calls back with the number of the surface that is clicked, 0 for none.
  listenForClicks(onClick) {
    let start;
    this.canvas.addEventListener("pointerdown", ({ clientX, clientY }) => (start = { clientX, clientY }));
    this.canvas.addEventListener("click", ({ clientX, clientY }) => {
      if (!start || Math.hypot(clientX - start.clientX, clientY - start.clientY) > CLICK) return;
      const ratio = this.renderer.getPixelRatio();
      onClick(this.seen.numberAt(Math.floor(clientX * ratio), Math.floor((window.innerHeight - clientY) * ratio)));
    });
  }

  onKey(event) {
    const steps = {
      ArrowLeft: [-KEY_STEP, 0, 1], ArrowRight: [KEY_STEP, 0, 1], ArrowUp: [0, -KEY_STEP, 1], ArrowDown: [0, KEY_STEP, 1],
      "+": [0, 0, 1 / KEY_ZOOM], "=": [0, 0, 1 / KEY_ZOOM], "-": [0, 0, KEY_ZOOM],
    };
    if (event.key === "0") this.viewpoint.showAll(DIRECTIONS[0]);
    else if (event.key in steps) this.viewpoint.turn(...steps[event.key]);
    else return;
    event.preventDefault();
  }
}
