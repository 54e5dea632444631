// What the program knows its page by, beside the cookie: it comes with the address behind a "#", and is kept for this tab alone.
const name = 'workbench-key';

const key = takeKey();

function takeKey(): string {
  const [, given] = /^#key=([0-9a-f]+)$/.exec(location.hash) ?? [];
  if (!given) return sessionStorage.getItem(name) ?? '';
  sessionStorage.setItem(name, given);
  history.replaceState(null, '', location.pathname);
  return given;
}

/// For the page's own requests.
export const keyHeader = (): Record<string, string> => ({'Workbench-Key': key});

/// For those that the browser makes: of events, and of a download.
export const withKey = (address: string): string => `${address}${address.includes('?') ? '&' : '?'}key=${key}`;
