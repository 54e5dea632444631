// A field that shows what is typed at once, and what the host makes of it as soon as that is known.
import {Component, createRef} from 'preact';
import type {Answer} from './protocol.ts';
import {noteTyping} from './typing_on.ts';

interface Props {
  value: string;
  revision: number;     ///< of the state that the value is from
  lines: number;        ///< 0: a field of one line
  readOnly: boolean; disabled: boolean; label: string; id?: string; title?: string; class?: string; tabIndex?: number; placeholder?: string;
  change(text: string): Promise<Answer>;
  focus?(): void;
}

type Field = HTMLInputElement | HTMLTextAreaElement;

export class TextField extends Component<Props> {
  private readonly field = createRef<Field>();
  private typed: string | null = null;  // what the host has not yet said anything about
  private until = Infinity;             // the revision in which it has
  private composing = false;

  componentDidMount(): void {
    this.field.current!.value = this.props.value;
  }

  componentDidUpdate(): void {
    if (this.props.revision >= this.until) this.forget();
    this.sync();
  }

  render({lines, readOnly, disabled, label, id, title, class: name, tabIndex, placeholder}: Props) {
    const common = {
      ref: this.field as never, id, title, class: name, tabIndex, placeholder, disabled, readOnly, 'aria-label': label || undefined, spellcheck: false,
      onInput: () => this.input(), onFocus: () => this.props.focus?.(),
      onCompositionStart: () => { this.composing = true; },
      onCompositionEnd: () => {
        this.composing = false;
        this.input();
      }};
    return lines > 0 ? <textarea rows={lines} {...common}/> : <input type="text" autocomplete="off" {...common}/>;
  }

  private input(): void {
    const text = this.field.current!.value;
    noteTyping();
    this.typed = text;
    this.until = Infinity;
    if (this.composing) return;
    void this.props.change(text).then(answer => {
      if (this.typed !== text) return;
      this.until = answer.error ? -1 : answer.revision ?? -1;
      if (this.props.revision >= this.until) this.forget();
      this.sync();
    });
  }

  private forget(): void {
    this.typed = null;
    this.until = Infinity;
  }

  // A text that is set takes the caret to its end.
  private sync(): void {
    const field = this.field.current;
    const shown = this.typed ?? this.props.value;
    if (!field || this.composing || field.value === shown) return;
    const [start, end] = [field.selectionStart, field.selectionEnd];
    field.value = shown;
    if (document.activeElement === field) field.setSelectionRange(start, end);
  }
}
