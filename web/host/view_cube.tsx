// A cube that stands as the model does; its faces are the views.
import {useEffect, useRef} from 'preact/hooks';
import type {Viewer, ViewName} from '../viewer/viewer.ts';

const faces: [ViewName, string][] = [['front', 'Front'], ['back', 'Back'], ['left', 'Left'], ['right', 'Right'], ['top', 'Top'], ['bottom', 'Bottom']];

interface Props { viewer(): Viewer | null; moves: Set<() => void> }

export function ViewCube({viewer, moves}: Props) {
  const cube = useRef<HTMLDivElement>(null);
  useEffect(() => {
    const turn = () => {
      const pose = viewer()?.pose;
      if (cube.current && pose) cube.current.style.transform = `rotateX(${-pose.pitch}rad) rotateY(${-pose.yaw}rad)`;
    };
    moves.add(turn);
    turn();
    return () => { moves.delete(turn); };
  }, []);
  return (
    <div class="view-cube">
      <div class="cube" ref={cube}>
        {faces.map(([name, caption]) => (
          <button key={name} type="button" class={`face ${name}`} tabIndex={-1} aria-hidden="true" title={`${caption} view`} onClick={() => viewer()?.look(name)}>{caption}</button>))}
      </div>
    </div>);
}
