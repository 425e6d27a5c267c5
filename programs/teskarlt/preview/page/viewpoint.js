// viewpoint.js - where the drawing is seen from: in perspective, or in parallel for plan and elevations; and the flights
// from one place to another.
import { OrthographicCamera, PerspectiveCamera, Sphere, Spherical, Vector3 } from "three";
import { OrbitControls } from "three/addons/controls/OrbitControls.js";

const FLIGHT = 700; // milliseconds
const FIELD = 32; // degrees
const MARGIN = 1.22; // around the drawing in parallel views
const HALF_FIELD = Math.tan((FIELD * Math.PI) / 360);

// To the viewer: x to the east, y up, z to the south.
export const DIRECTIONS = [
  { name: "3D", direction: [0.62, 0.55, 0.75] },
  { name: "Plan", direction: [0, 1, 0.0001], isParallel: true },
  { name: "South", direction: [0, 0, 1], isParallel: true },
  { name: "East", direction: [1, 0, 0], isParallel: true },
  { name: "North", direction: [0, 0, -1], isParallel: true },
  { name: "West", direction: [-1, 0, 0], isParallel: true },
];

export class Viewpoint {
  // onMove is called whenever a new picture is needed, onTouch when the viewer takes over from a flight.
  constructor(canvas, box, { onMove, onTouch }) {
    this.box = box;
    this.sphere = box.getBoundingSphere(new Sphere());
    this.sphere.radius = Math.max(this.sphere.radius, 0.01);
    this.onMove = onMove;
    this.onTouch = onTouch;
    this.isParallel = false;
    // The one in perspective is moved; the parallel one follows it and shows as much around the target.
    this.perspective = new PerspectiveCamera(FIELD);
    this.parallel = new OrthographicCamera();
    this.controls = new OrbitControls(this.perspective, canvas);
    this.controls.maxPolarAngle = Math.PI / 2;
    this.controls.minDistance = this.sphere.radius / 50;
    this.controls.maxDistance = this.sphere.radius * 12;
    this.controls.addEventListener("change", onMove);
    this.controls.addEventListener("start", () => this.land());
  }

  // The middle of the picture is moved so many pixels to the left and up, as other parts of the page lie over the rest.
  resize(width, height, left, up) {
    this.perspective.aspect = width / height;
    this.freeAspect = (width - 2 * left) / height;
    for (const camera of [this.perspective, this.parallel]) camera.setViewOffset(width, height, left, up, width, height);
  }

  // The camera of the next picture.
  camera() {
    const { perspective, parallel, sphere, controls } = this;
    if (!this.isParallel) {
      // Depths are the finer the farther away they begin.
      perspective.near = Math.max(perspective.position.distanceTo(sphere.center) - 2 * sphere.radius, sphere.radius / 200);
      perspective.far = perspective.near + sphere.radius * 30;
      perspective.updateProjectionMatrix();
      return perspective;
    }
    const top = perspective.position.distanceTo(controls.target) * HALF_FIELD;
    const right = top * perspective.aspect;
    const depth = sphere.center.clone().sub(perspective.position).dot(perspective.getWorldDirection(new Vector3()));
    const near = depth - 3 * sphere.radius;
    const far = depth + 3 * sphere.radius;
    Object.assign(parallel, { top, bottom: -top, right, left: -right, near, far });
    parallel.position.copy(perspective.position);
    parallel.quaternion.copy(perspective.quaternion);
    parallel.updateProjectionMatrix();
    return parallel;
  }

  showAll({ direction, isParallel = false }, isAtOnce) {
    const { center } = this.sphere;
    const toViewer = new Vector3(...direction).normalize();
    const distance = isParallel ? this.parallelDistance(toViewer) : this.distance(this.sphere.radius * this.roundness());
    this.moveTo(center, toViewer.multiplyScalar(distance).add(center), { isParallel, isAtOnce });
  }

  showWindow({ middle, size, facing }, isAtOnce) {
    const target = new Vector3(...middle);
    const [x, y, z] = facing; // seen from lower down, so that the window stands upright
    const toViewer = new Vector3(x, y * 0.6, Math.hypot(x, z) < 0.01 ? 0.3 : z).normalize();
    this.moveTo(target, toViewer.multiplyScalar(this.distance(size * 1.3)).add(target), { isParallel: false, isAtOnce });
  }

  // From where a ball of this radius is seen as a whole.
  distance(radius) {
    return radius / Math.sin(Math.atan(HALF_FIELD * Math.min(1, this.perspective.aspect)));
  }

  // A house is not as high as the ball around it.
  roundness() {
    return this.perspective.aspect < 1 ? 1 : 0.88;
  }

  // From where the whole box is seen in a parallel view from this direction.
  parallelDistance(toViewer) {
    const half = this.box.getSize(new Vector3()).multiplyScalar(0.5);
    const right = new Vector3(toViewer.z, 0, -toViewer.x).normalize();
    const up = new Vector3().crossVectors(toViewer, right);
    const reach = ({ x, y, z }) => Math.abs(x) * half.x + Math.abs(y) * half.y + Math.abs(z) * half.z;
    return (MARGIN * Math.max(reach(up), reach(right) / this.freeAspect, this.sphere.radius / 50)) / HALF_FIELD;
  }

  moveTo(target, position, { isParallel, isAtOnce }) {
    const still = isAtOnce || matchMedia("(prefers-reduced-motion: reduce)").matches;
    const { perspective, controls } = this;
    const from = new Spherical().setFromVector3(perspective.position.clone().sub(controls.target));
    const to = new Spherical().setFromVector3(position.clone().sub(target));
    to.theta = from.theta + Math.atan2(Math.sin(to.theta - from.theta), Math.cos(to.theta - from.theta));
    this.isParallel = false;
    this.flight = { from, to, isParallel, fromTarget: controls.target.clone(), toTarget: target, start: still ? -Infinity : undefined };
    this.onMove();
  }

  // Goes on with the flight, if there is one, to where it is at this time.
  fly(now) {
    if (!this.flight) return;
    const { from, to, fromTarget, toTarget, isParallel } = this.flight;
    this.flight.start ??= now;
    const share = Math.min(1, (now - this.flight.start) / FLIGHT);
    const eased = share * share * (3 - 2 * share);
    const between = (a, b) => a + (b - a) * eased;
    const at = new Spherical(to.radius * (from.radius / to.radius) ** (1 - eased), between(from.phi, to.phi),
                             between(from.theta, to.theta));
    if (share === 1) {
      this.flight = undefined;
      this.isParallel = isParallel;
    }
    this.controls.target.lerpVectors(fromTarget, toTarget, eased);
    this.perspective.position.setFromSpherical(at).add(this.controls.target);
    this.controls.update();
    this.onMove();
  }

  land() {
    this.flight = undefined;
    this.onTouch();
  }

  turn(theta, phi, zoom) {
    const offset = new Spherical().setFromVector3(this.perspective.position.clone().sub(this.controls.target));
    offset.theta += theta;
    offset.phi += phi;
    offset.radius *= zoom;
    this.perspective.position.setFromSpherical(offset.makeSafe()).add(this.controls.target);
    this.land();
    this.controls.update();
    this.onMove();
  }
}
