// What went wrong in the add-in, and what it opened: a drawer below the model that can stay closed.
import {useLayoutEffect, useRef} from 'preact/hooks';
import {webAddress} from './formatted.ts';
import {Icon} from './icons.tsx';
import {withKey} from './key.ts';
import type {LogEntry, State} from './protocol.ts';
import {texts} from './texts.ts';

const mostShown = 60;

export const isTrouble = ({kind}: LogEntry) => kind === 'exception' || kind === 'misuse';

export function Log({state, close}: {state: State; close(): void}) {
  const list = useRef<HTMLOListElement>(null);
  const entries = state.log.slice(-mostShown);
  useLayoutEffect(() => { list.current?.scrollTo(0, list.current.scrollHeight); }, [state.log[state.log.length - 1]?.n]);
  return (
    <aside class="log" aria-label={texts.log}>
      <header><h2>{texts.log}</h2><button type="button" class="tool" title={texts.closeLog} aria-label={texts.closeLog} onClick={close}><Icon sign="close"/></button></header>
      <ol ref={list} tabIndex={0} aria-label={texts.log}>
        {entries.map(entry => (
          <li key={entry.n} class={entry.kind}>
            <span class="kind">{texts.kinds[entry.kind]}</span>
            <span class="where">{[entry.event, entry.input].filter(Boolean).join(' · ')}</span>
            <span class="what">{entry.type ? `${entry.type}: ` : ''}{entry.text}</span>
          </li>))}
        {!entries.length && <li class="quiet">{texts.noLog}</li>}
      </ol>
      {state.opened.length > 0 && (
        <div class="opened"><h3>{texts.opened}</h3>
          <ul>{state.opened.slice(-8).map(({n, target, url}) => (
            <li key={n}>{url ? <a href={withKey(url)} download={target.split(/[\\/]/).pop()}>{target.split(/[\\/]/).pop()}</a>
                 : webAddress(target) ? <a href={target} target="_blank" rel="noopener noreferrer">{target}<Icon sign="external"/></a> : <span>{target}</span>}</li>))}</ul>
        </div>)}
    </aside>);
}
