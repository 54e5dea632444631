// The camera, as a turntable: it looks at a target from a direction, with the model's up on top.
import {Matrix4, OrthographicCamera, PerspectiveCamera, Vector3} from 'three';

export type ViewName = 'iso' | 'front' | 'back' | 'left' | 'right' | 'top' | 'bottom';
export const viewNames: ViewName[] = ['iso', 'front', 'back', 'left', 'right', 'top', 'bottom'];

const quarter = Math.PI / 2;
const directions: Record<ViewName, [number, number]> = {
  iso: [Math.PI / 4, Math.atan(Math.SQRT1_2)], front: [0, 0], back: [Math.PI, 0], left: [-quarter, 0],
  right: [quarter, 0], top: [0, quarter], bottom: [0, -quarter],
};
const fieldOfView = 28 * Math.PI / 180;

/// All that a picture depends on; plain, so that it can be stored and moved from one to another.
export interface Pose {
  x: number; y: number; z: number;  ///< what is looked at
  yaw: number; pitch: number;
  size: number;  ///< height of what is seen at the target
}

export interface Sphere { x: number; y: number; z: number; radius: number }

export function direction(name: ViewName): {yaw: number; pitch: number} {
  return {yaw: directions[name][0], pitch: directions[name][1]};
}

/// The way from the target to the camera, and the camera's right and up.
export function axes(pose: Pose): {back: Vector3; right: Vector3; up: Vector3} {
  const [sy, cy, sp, cp] = [Math.sin(pose.yaw), Math.cos(pose.yaw), Math.sin(pose.pitch), Math.cos(pose.pitch)];
  return {back: new Vector3(sy * cp, sp, cy * cp), right: new Vector3(cy, 0, -sy), up: new Vector3(-sy * sp, cp, -cy * sp)};
}

export class Camera {
  pose: Pose = {x: 0, y: 0, z: 0, ...direction('iso'), size: 1};
  perspective = true;
  private readonly withPerspective = new PerspectiveCamera();
  private readonly parallel = new OrthographicCamera();

  /// three's camera for a picture of this aspect, with all of `scene` between its planes.
  forPicture(aspect: number, scene: Sphere): PerspectiveCamera | OrthographicCamera {
    const {back, right, up} = axes(this.pose);
    const distance = this.distance();
    const target = new Vector3(this.pose.x, this.pose.y, this.pose.z);
    const camera = this.perspective ? this.withPerspective : this.parallel;
    camera.matrixAutoUpdate = false;
    camera.matrix.copy(new Matrix4().makeBasis(right, up, back)).setPosition(target.clone().addScaledVector(back, distance));
    camera.matrixWorld.copy(camera.matrix);
    camera.matrixWorldInverse.copy(camera.matrix).invert();
    const depth = distance - new Vector3(scene.x, scene.y, scene.z).sub(target).dot(back);
    this.project(aspect, Math.max(depth - scene.radius, distance * 0.01), depth + scene.radius * 1.01);
    return camera;
  }

  private project(aspect: number, near: number, far: number): void {
    const half = this.pose.size / 2;
    if (this.perspective) {
      const y = near * Math.tan(fieldOfView / 2);
      this.withPerspective.projectionMatrix.makePerspective(-y * aspect, y * aspect, y, -y, near, Math.max(far, near * 1.1));
      this.withPerspective.projectionMatrixInverse.copy(this.withPerspective.projectionMatrix).invert();
      return;
    }
    const depth = Math.max(Math.abs(far), Math.abs(near)) + this.pose.size;
    this.parallel.projectionMatrix.makeOrthographic(-half * aspect, half * aspect, half, -half, -depth, depth);
    this.parallel.projectionMatrixInverse.copy(this.parallel.projectionMatrix).invert();
  }

  private distance(): number {
    return this.pose.size / 2 / Math.tan(fieldOfView / 2);
  }

  /// The pose that shows the sphere, seen from where the camera is.
  fitting(sphere: Sphere, aspect: number): Pose {
    const margin = this.perspective ? 1 / Math.cos(fieldOfView / 2) : 1;
    const size = Math.max(sphere.radius, 1e-9) * 2 * margin / Math.min(1, aspect);
    return {...this.pose, x: sphere.x, y: sphere.y, z: sphere.z, size};
  }

  turn(yaw: number, pitch: number): void {
    this.pose.yaw += yaw;
    this.pose.pitch = Math.min(quarter, Math.max(-quarter, this.pose.pitch + pitch));
  }

  /// Moves the target by shares of the picture's height.
  pan(x: number, y: number): void {
    const {right, up} = axes(this.pose);
    const target = new Vector3(this.pose.x, this.pose.y, this.pose.z)
                       .addScaledVector(right, x * this.pose.size).addScaledVector(up, y * this.pose.size);
    Object.assign(this.pose, {x: target.x, y: target.y, z: target.z});
  }

  /// Zooms so that what is (x, y) of the picture's height away from its middle stays there.
  zoom(factor: number, x = 0, y = 0): void {
    this.pan(x * (1 - factor), y * (1 - factor));
    this.pose.size *= factor;
  }
}

/// The pose a share `t` of the way between two, turning the shorter way round.
export function between(a: Pose, b: Pose, t: number): Pose {
  const mix = (x: number, y: number) => x + (y - x) * t;
  const full = Math.PI * 2;
  const turn = ((b.yaw - a.yaw) % full + full * 1.5) % full - Math.PI;
  return {x: mix(a.x, b.x), y: mix(a.y, b.y), z: mix(a.z, b.z), yaw: a.yaw + turn * t, pitch: mix(a.pitch, b.pitch),
          size: a.size * (b.size / a.size) ** t};
}
