// Who types when a window comes up types on for a moment. That is meant for the field, and is no answer.
const pace = 700;  // milliseconds between two keys of somebody who types

let last = -Infinity;

/// A field was typed into.
export function noteTyping(): void { last = performance.now(); }

export interface TypingOn { takes(event: KeyboardEvent): boolean }

/// Leads keys to the field that had the focus until now, as long as they come without a pause; null where nobody types.
export function typingOn(field: Element | null): TypingOn | null {
  const isText = field instanceof HTMLTextAreaElement || field instanceof HTMLInputElement && field.type === 'text';
  if (!isText || field.readOnly || performance.now() - last > pace) return null;
  return {takes: event => {
    if (performance.now() - last > pace) return false;
    noteTyping();
    const isCharacter = event.key.length === 1 && !event.metaKey && (!event.ctrlKey && !event.altKey || event.getModifierState('AltGraph'));
    if (isCharacter) put(field, event.key);
    return isCharacter || event.key === 'Enter';
  }};
}

function put(field: HTMLInputElement | HTMLTextAreaElement, text: string): void {
  field.setRangeText(text, field.selectionStart ?? 0, field.selectionEnd ?? 0, 'end');
  field.dispatchEvent(new Event('input', {bubbles: true}));
}
